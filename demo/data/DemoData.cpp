#include "data/DemoData.h"

#include "data/SeededDrives.h"
#include "data/SeededRecords.h"

namespace demo {

namespace {

using enum FieldKind;

constexpr Field driveFields[] = {
    {.name = "date", .kind = date},
    {.name = "start", .kind = time},
    {.name = "minutes", .kind = number},
    {.name = "from", .isRequired = true},
    {.name = "to", .isRequired = true},
    {.name = "distance", .kind = number, .isRequired = true},
    {.name = "vehicle", .isRequired = true},
    {.name = "driver"},
    {.name = "purpose"},
    {.name = "cost", .kind = number},
    {.name = "score", .kind = number},
};

constexpr Field vehicleFields[] = {
    {.name = "name", .isRequired = true},
    {.name = "model"},
    {.name = "plate"},
    {.name = "energy"},
    {.name = "year", .kind = number},
    {.name = "odometer", .kind = number},
    {.name = "nextService", .kind = date},
};

constexpr Field driverFields[] = {
    {.name = "firstname", .isRequired = true},
    {.name = "lastname", .isRequired = true},
    {.name = "licence"},
    {.name = "group"},
    {.name = "since", .kind = date},
    {.name = "score", .kind = number},
};

constexpr Field fuelFields[] = {
    {.name = "date", .kind = date},
    {.name = "vehicle", .isRequired = true},
    {.name = "station"},
    {.name = "litres", .kind = number, .isRequired = true},
    {.name = "total", .kind = number, .isRequired = true},
    {.name = "odometer", .kind = number},
};

constexpr Field chargingFields[] = {
    {.name = "date", .kind = date},
    {.name = "vehicle", .isRequired = true},
    {.name = "station"},
    {.name = "energy", .kind = number, .isRequired = true},
    {.name = "minutes", .kind = number},
    {.name = "total", .kind = number, .isRequired = true},
};

constexpr Field groupFields[] = {
    {.name = "name", .isRequired = true},
    {.name = "members"},
    {.name = "vehicles"},
    {.name = "role"},
};

constexpr Field ticketFields[] = {
    {.name = "date", .kind = date},
    {.name = "subject", .isRequired = true},
    {.name = "message"},
    {.name = "state"},
};

} // namespace

DemoData::DemoData()
{
    collections_.emplace("drives", driveFields);
    collections_.emplace("vehicles", vehicleFields);
    collections_.emplace("drivers", driverFields);
    collections_.emplace("fuel", fuelFields);
    collections_.emplace("charging", chargingFields);
    collections_.emplace("account-groups", groupFields);
    collections_.emplace("tickets", ticketFields);

    for (const auto& [name, record] : seededRecords())
        find(name)->add(record);
    for (const auto& [name, record] : seededDrives())
        find(name)->add(record);
}

Collection* DemoData::find(std::string_view name)
{
    const auto found = collections_.find(name);
    return found == collections_.end() ? nullptr : &found->second;
}

const Collection* DemoData::find(std::string_view name) const
{
    return const_cast<DemoData*>(this)->find(name);
}

const Collection& DemoData::at(std::string_view name) const
{
    return collections_.find(name)->second;
}

} // namespace demo
