#include "Router.h"
#include "Routes.h"
#include "Services.h"

using namespace Qt::StringLiterals;

namespace kiv::sandbox {

namespace {

Reply faultList(Services &services) {
    return Reply::json({{u"faults"_s, QJsonArray::fromStringList(services.faults.list())}});
}

Reply setFaults(Services &services, const Call &call) {
    std::vector<Fault> faults;
    for (const QJsonValue &value : call.json().value(u"faults"_s).toArray()) {
        try {
            faults.push_back(Fault::parse(value.toString()));
        } catch (const FaultError &error) {
            throw Refusal(400, QString::fromUtf8(error.what()), u"bad_fault"_s);
        }
    }
    services.faults.set(std::move(faults));
    return faultList(services);
}

Reply beacons(Services &services) {
    const auto rows = services.database.run(
        [](Sql &sql) { return sql.rows(u"SELECT name, SUM(count) FROM beacons GROUP BY name"_s); });
    QJsonObject counts;
    for (const Row &row : rows)
        counts.insert(row.text(0), row.whole(1));
    return Reply::json({{u"beacons"_s, counts}});
}

} // namespace

void addControlRoutes(Router &router, Services &services) {
    using Access = Router::Access;
    router.get("/_control/faults", Access::Everybody,
               [&services](const Call &) { return faultList(services); });
    router.post("/_control/faults", Access::Everybody,
                [&services](const Call &call) { return setFaults(services, call); });
    router.get("/_control/voice", Access::Everybody,
               [&services](const Call &) { return Reply::json(services.witness.report()); });
    router.get("/_control/beacons", Access::Everybody,
               [&services](const Call &) { return beacons(services); });
}

} // namespace kiv::sandbox
