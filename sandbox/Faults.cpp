#include "Faults.h"

#include <algorithm>
#include <array>
#include <chrono>

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

struct KindName {
    Fault::Kind kind;
    QLatin1StringView name;
    bool needsValue;
    int most;
};

constexpr std::array kinds{
    KindName{Fault::Latency, "latency"_L1, true, 600'000},
    KindName{Fault::Status, "status"_L1, true, 599},
    KindName{Fault::Html, "html"_L1, true, 599},
    KindName{Fault::BadJson, "bad-json"_L1, false, 1'000'000},
    KindName{Fault::Close, "close"_L1, false, 0},
    KindName{Fault::Slow, "slow"_L1, true, 60'000},
    KindName{Fault::StreamDrop, "stream-drop"_L1, true, 1'000'000},
    KindName{Fault::HalfEvent, "half-event"_L1, true, 1'000'000},
    KindName{Fault::HalfCharacter, "half-character"_L1, true, 1'000'000},
    KindName{Fault::StreamStall, "stream-stall"_L1, true, 1'000'000},
    KindName{Fault::CallUnavailable, "call-unavailable"_L1, false, 0},
    KindName{Fault::CallRefused, "call-refused"_L1, false, 0},
    KindName{Fault::CallLimit, "call-limit"_L1, true, 36'000},
    KindName{Fault::CallTokenOnly, "call-token-only"_L1, false, 0},
    KindName{Fault::CallWithToken, "call-with-token"_L1, false, 0},
    KindName{Fault::CallNoTransport, "call-no-transport"_L1, false, 0},
    KindName{Fault::CallDrop, "call-drop"_L1, true, 600'000},
    KindName{Fault::CallDeaf, "call-deaf"_L1, false, 0},
};

[[noreturn]] void fail(const QString &text, const QString &why) {
    throw FaultError(u"\"%1\": %2"_s.arg(text, why).toStdString());
}

int wholeNumber(const QString &text, const QString &value, int most) {
    bool good = false;
    const int number = value.toInt(&good);
    if (!good || number < 0 || number > most)
        fail(text, u"\"%1\" is no number up to %2"_s.arg(value).arg(most));
    return number;
}

void readKind(Fault &fault, const QString &text, const QString &name, const QString &value) {
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const KindName &kind) { return kind.name == name; });
    if (found == kinds.end())
        fail(text, u"unknown fault"_s);
    fault.kind = found->kind;
    if (found->needsValue || !value.isEmpty())
        fault.value = wholeNumber(text, value, found->most);
    if ((fault.kind == Fault::Status || fault.kind == Fault::Html) && fault.value < 100)
        fail(text, u"a status has three digits"_s);
}

void readLimit(Fault &fault, const QString &text, const QString &name, const QString &value) {
    if (name == "path"_L1)
        fault.path = value;
    else if (name == "method"_L1)
        fault.method = value.toUpper();
    else if (name == "times"_L1)
        fault.times = wholeNumber(text, value, 1'000'000);
    else if (name == "code"_L1)
        fault.code = value;
    else
        fail(text, u"unknown word \"%1\""_s.arg(name));
}

} // namespace

Fault Fault::parse(const QString &text) {
    Fault fault;
    const QStringList parts = text.split(u',');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QString name = parts.at(i).section(u'=', 0, 0).trimmed();
        const QString value = parts.at(i).section(u'=', 1).trimmed();
        i == 0 ? readKind(fault, text, name, value) : readLimit(fault, text, name, value);
    }
    return fault;
}

QString Fault::text() const {
    const auto found = std::find_if(kinds.begin(), kinds.end(),
                                    [&](const KindName &entry) { return entry.kind == kind; });
    QString text = found->name;
    if (found->needsValue || value > 0)
        text += u"=%1"_s.arg(value);
    if (!path.isEmpty())
        text += u",path="_s + path;
    if (!method.isEmpty())
        text += u",method="_s + method;
    if (times >= 0)
        text += u",times=%1"_s.arg(times);
    return code.isEmpty() ? text : text + u",code="_s + code;
}

void Faults::set(std::vector<Fault> faults) {
    const std::lock_guard lock(m_mutex);
    m_faults = std::move(faults);
}

QStringList Faults::list() {
    const std::lock_guard lock(m_mutex);
    QStringList texts;
    for (const Fault &fault : m_faults)
        texts.append(fault.text());
    return texts;
}

std::optional<Fault> Faults::take(const QString &method, const QString &path,
                                  std::initializer_list<Fault::Kind> wanted) {
    const std::lock_guard lock(m_mutex);
    const auto strikes = [&](const Fault &fault) {
        return fault.times != 0 && std::ranges::find(wanted, fault.kind) != wanted.end() &&
               (fault.method.isEmpty() || fault.method == method) && path.contains(fault.path);
    };
    const auto found = std::find_if(m_faults.begin(), m_faults.end(), strikes);
    if (found == m_faults.end())
        return std::nullopt;
    if (found->times > 0)
        --found->times;
    return *found;
}

void Faults::sleep(int milliseconds) {
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return m_released; });
}

void Faults::release() {
    const std::lock_guard lock(m_mutex);
    m_released = true;
    m_wake.notify_all();
}

} // namespace kiv::sandbox
