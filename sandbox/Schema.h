#pragma once

namespace kiv::sandbox {

class Sql;

/// Brings the open database to the current tables.
void createSchema(Sql &sql);

} // namespace kiv::sandbox
