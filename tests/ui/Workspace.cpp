#include "ui/Workspace.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kiv::ui {

namespace {

struct MadeUpAgent {
    const char *id;
    const char *name;
    const char *role;
};

struct MadeUpProject {
    const char *slug;
    const char *label;
    QList<MadeUpAgent> agents;
};

const QList<MadeUpProject> projects = {
    {"ferry",
     "Night Ferry",
     {{"scout", "Scout", "Research"}, {"loom", "Loom", "Design"}, {"anvil", "Anvil", "Build"}}},
    {"lantern", "Paper Lantern", {{"quill", "Quill", "Copy"}, {"ember", "Ember", "Launch"}}},
    {"glass", "Glasshouse", {{"a", "Ada", "Data"}, {"b", "Bo", "Test"}, {"c", "Cy", "Support"}}},
    {"orchard",
     "Orchard",
     {{"d", "Di", "Tax"}, {"e", "Ed", "Sales"}, {"f", "Fay", "Press"}, {"g", "Gus", "Legal"}}},
    {"kettle", "Blue Kettle", {{"h", "Hal", "Ops"}, {"i", "Ivy", "People"}}},
};

} // namespace

Workspace::Workspace() {
    backend.answer(u"GET api/v2/auth/me"_s,
                   R"({"id":"u1","email":"lead@night-ferry.example","name":"Ona Lindqvist"})");
    QByteArray list;
    for (const MadeUpProject &project : projects) {
        list += QByteArray(list.isEmpty() ? "" : ",") + R"({"slug":")" + project.slug +
                R"(","label":")" + project.label + R"("})";
        QByteArray members;
        for (const MadeUpAgent &agent : project.agents)
            members += QByteArray(members.isEmpty() ? "" : ",") +
                       R"({"member_kind":"agent","agent":{"id":")" + agent.id + R"(","name":")" +
                       agent.name + R"(","role":")" + agent.role + R"("}})";
        const QString slug = QLatin1StringView(project.slug);
        backend.answer(u"GET api/v2/projects/%1/members"_s.arg(slug), '[' + members + ']');
        backend.answer(u"GET api/v2/projects/%1/events"_s.arg(slug), "{}");
        history(u"api/v2/projects/%1/chat"_s.arg(slug), "[]");
        backend.answer(u"POST api/v2/projects/%1/chat"_s.arg(slug), "{}");
    }
    backend.answer(u"GET api/v2/projects"_s, R"({"projects":[)" + list + "]}");
    backend.answer(u"GET api/v2/custom-agents"_s, R"({"agents":[]})");
    restart();
}

void Workspace::answerAccount() {
    backend.answer(u"GET api/v2/user/profile"_s,
                   R"({"email":"lead@night-ferry.example",
        "full_name":"Ona Lindqvist","handle":"ona.lindqvist","company_name":"Harbour & Lane",
        "company_website":"harbour-lane.example","company_size":"51–200","industry":"Transport",
        "jobTitle":"Operations lead","time_zone":"Europe/Oslo","preferred_language":"English",
        "preferred_country":"Norway",
        "preferred_sectors":["Logistics","Public services","Образование"],
        "communication_style":"balanced","working_hours_start":"09:00",
        "working_hours_end":"17:30","working_hours_days":"Mon, Tue, Wed, Thu, Fri",
        "notification_email":true,
        "goals_md":)"
                   R"("# Goals\n\nShip the **guided sign-up**.\n\n- [x] Collect\n- [ ] Fill\n\n)"
                   R"(| Quarter | Orders |\n|---|---|\n| Q1 | 120 |\n\n```sh\nmake ship\n```"})");
    backend.answer(u"GET api/v2/user/plan"_s,
                   R"({"name":"Team","plan_key":"team",
        "token_limit":2000000,"spent_tokens":1240500,"tokens_left":759500})");
    backend.answer(u"GET api/v2/user/wallet"_s,
                   R"({"wallet":{"balance_credits":212.4,"available_credits":180}})");
}

bool Workspace::ask(const QString &question, const QString &answer, const QString &art) {
    store->chat()->send(question);
    row(++m_row, question, u"user"_s);
    row(++m_row, answer);
    return settle(art);
}

bool Workspace::settle(const QString &art) {
    return QTest::qWaitFor([&] {
        clock.advance(100ms);
        const store::CanvasRoom *canvas = store->canvas();
        return canvas->art() == art && !canvas->awaitingAnswer() &&
               canvas->phase() == (art.isEmpty() ? store::Phase::Idle : store::Phase::Done);
    });
}

QByteArray Workspace::events() {
    return R"({"events":[
    {"id":4,"kind":"release","title":"Guided sign-up is live",
     "detail":"Anvil finished the last screen","created_at":"2026-03-02T09:40:00Z"},
    {"id":3,"kind":"alert","title":"Load test failed",
     "detail":"Two of twelve steps timed out","created_at":"2026-03-02T09:28:00Z"},
    {"id":2,"kind":"approval","title":"Approval needed",
     "detail":"Scout asks for the price survey","created_at":"2026-03-02T09:02:00Z"},
    {"id":1,"title":"Copy changed","created_at":"yesterday"}]})";
}

QByteArray Workspace::pastCalls() {
    return R"({"calls":[
    {"id":"c3","status":"done","duration_secs":192,"started_at":"2026-03-02T09:12:00Z",
     "snippet":"How do the projects look this week?","has_transcript":true},
    {"id":"c2","status":"failed","duration_secs":0,"started_at":"2026-03-01T17:40:00Z",
     "snippet":"","has_transcript":false},
    {"id":"c1","status":"done","duration_secs":3792,"started_at":"2025-11-20T08:05:00Z",
     "snippet":"How many hours will it take each of them until the end of the month if nobody falls ill, and who could help?",
     "has_transcript":true}]})";
}

QByteArray Workspace::pastTranscript() {
    return R"({"call":{"transcript":[
    {"role":"agent","t":1.5,"text":"KIV here. I see all projects and every agent under them."},
    {"role":"user","t":9,"text":"How do the projects look this week?"},
    {"role":"agent","t":14.2,"text":"Three of five are on track. Orchard waits for a tax field and Glasshouse is over its capacity."}]}})";
}

QString Workspace::reportAnswer() {
    return uR"(A good week with two open spots: Orchard is blocked by a missing tax field and Glasshouse runs above its capacity.

```view
{"kind":"kpi","title":"Portfolio report, week 47","display":"report","items":[
 {"label":"Recognised revenue","display":"€418,200","delta":"+6.2% on last week"},
 {"label":"Open tasks","value":137,"delta":"−12"},
 {"label":"Overdue tasks","value":9,"delta":"+3"},
 {"label":"Spend against plan","display":"96%","delta":"plan €71,500"},
 {"label":"Releases shipped","value":23,"delta":"+5"},
 {"label":"Median first reply","display":"2 h 14 m","delta":"+9 m"},
 {"label":"Night Ferry shipped the guided sign-up two days early."},
 {"label":"Orchard has two invoices blocked by a missing tax field."},
 {"label":"Glasshouse runs at 118% load until the data agent is back."},
 {"label":"Paper Lantern keeps its launch date, Thursday 3 December."}]}
```)"_s;
}

QString Workspace::mixedAnswer() {
    return uR"(# Orchard invoices, state on Sunday

Two of 214 invoices are blocked, for one and the same reason: the export leaves `tax_region` empty when a customer has **two addresses**. See [the export notes](https://docs.example/export) or https://docs.example/tax.

| Invoice | Customer group | Amount | Days open |
|---|---|---|---|
| O-2214 | Schools, north | €1,240.00 | 4 |
| O-2219 | Мастерские, юг | €385.50 | 3 |

The totals by group, as they stand **now**:

| Group | Total | Share of all that is open, with the reason why it is not smaller than it was in the week before | Note |
|---|---|---|---|
| Schools | €2,480.00 | 41% | grows by `2` a week |
| Shops | €12,385.50 | 59% | **watch** |

## What happens next

- [x] Collect the affected customers
- [ ] Fill the region from the *billing* address

```sql
update customers set tax_region = billing_region
where tax_region = '';
```

> Nothing is sent to customers before you approve the wording.

### In this order

1. Stop the export
2. Run the update in a copy of the table and compare the totals of both, since a wrong region would be worse than an empty one
10. Start the export

- A first point with `code` in it
- A second point that is long enough to be wrapped onto a further line, so that the hanging indent shows
---
Done.)"_s;
}

QString Workspace::compareAnswer(const QString &firstName) {
    return uR"(Six options, monthly figures at the current load.

```view
{"kind":"table","title":"Hosting options for Glasshouse","display":"compare",
 "columns":["Option","Price per month","Uptime","Latency, p95","Backups"],"rows":[
 ["%1","€1,240","99.90%","38 ms","Included"],
 ["Dedicated small","€1,985","99.95%","24 ms","Included"],
 ["Dedicated large","€3,410","99.99%","17 ms","Included"],
 ["Edge network","€2,760","99.97%","11 ms","Extra €180"],
 ["Own rack","€2,120","99.80%","29 ms","Not offered"],
 ["Резервный кластер","€1,560","99.90%","41 ms","Included"]]}
```)"_s.replace(u"%1"_s, firstName);
}

} // namespace kiv::ui
