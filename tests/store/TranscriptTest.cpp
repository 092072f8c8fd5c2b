// A conversation as it leaves the program.

#include "store/Transcript.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace kiv::store;

namespace {

Msg message(Who who, const QString &text, qint64 row) {
    Msg message = localMsg(who, text);
    message.serverID = row;
    message.at = QDateTime(QDate(2026, 3, 2), QTime(9, 42));
    return message;
}

} // namespace

class TranscriptTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whoSaidWhat() {
        Msg question = message(Who::You, u"  What *is* open?\n"_s, 1);
        MsgFile file;
        file.name = u"plan_[1].pdf"_s;
        file.url = u"https://files.example/k1"_s;
        question.files = {file};
        Msg answer = message(Who::Agent, u"# Two\n\n```\nleft open"_s, 2);
        answer.memberLabel = u"Ledger"_s;
        Msg picture = message(Who::You, QString(), 3);
        picture.at.reset();
        picture.files = {file};
        Msg unsent = localMsg(Who::You, u"Still there?"_s);
        unsent.pendingID = u"x"_s;
        Msg spoken = localMsg(Who::Agent, u"On plan."_s);
        spoken.fromCall = true;
        Msg call = localMsg(Who::Agent, u"Call · 0:12"_s);
        call.fromCall = call.callHead = true;
        QCOMPARE(transcript(u"Night *Ferry*"_s,
                            {localMsg(Who::Agent, u"Greeting"_s), question, answer, picture, call,
                             spoken, unsent, localMsg(Who::Agent, u"It failed"_s)}),
                 uR"(# Night \*Ferry\*

**You** · 2 March 2026, 09:42

What *is* open?

- plan\_\[1\].pdf

**Night \*Ferry\*** · with Ledger · 2 March 2026, 09:42

# Two

```
left open
```

**You**

- plan\_\[1\].pdf

**Night \*Ferry\***

On plan.

**You** · not sent

Still there?
)"_s);
    }
};

QTEST_APPLESS_MAIN(TranscriptTest)
#include "TranscriptTest.moc"
