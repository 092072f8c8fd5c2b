#include "ChatWindow.h"

#include <QTextDocument>

namespace kiv::bench {

using namespace Qt::StringLiterals;

ChatWindow::ChatWindow() {
    if (!m_workspace.signIn())
        qFatal("The workspace does not open");
    m_gallery.setReducedMotion(true);
    m_gallery.open(*m_workspace.store, {1440, 900});
    m_workspace.store->layout()->toggleDock();
    m_gallery.item(u"dockFeed"_s);
    m_meter = std::make_unique<ui::FrameMeter>(m_gallery.window());
    m_meter->rest();
}

QString mixedSection(int number) {
    static const QString section = uR"(## Where group %1 stands

Two of 214 invoices of group %1 are blocked, for one and the same reason: the export leaves `region_%1` empty when a customer has **two addresses**. See [the notes](https://docs.example/export/%1).

| Invoice | Customer | Amount | Days |
|---|---|---|---|
| O-%1-14 | Schools, north | €1,240.00 | 4 |
| O-%1-19 | Мастерские, юг | €385.50 | 3 |

- [x] Collect the customers of group %1
- [ ] Fill the region from the *billing* address

```sql
update customers set region = billing_region
where region = '' and grp = %1;
```

> Nothing is sent to customers of group %1 before you approve the wording.

1. Stop the export of group %1
2. Run the update in a copy of the table and compare the totals of both
3. Start the export again

- A first point with `code %1` in it
- A second point that is long enough to be wrapped onto a further line

---

)"_s;
    return section.arg(number);
}

double documentTime(const QString &markdown) {
    const double start = ui::mainThreadTime();
    QTextDocument document;
    document.setMarkdown(markdown);
    document.setTextWidth(600);
    if (document.size().isEmpty())
        qFatal("The document shows nothing");
    return ui::mainThreadTime() - start;
}

} // namespace kiv::bench
