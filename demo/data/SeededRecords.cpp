#include "data/SeededRecords.h"

namespace demo {

std::vector<SeededRecord> seededRecords()
{
    using Record = nlohmann::json;
    const auto vehicle = [](const char* name, const char* model, const char* plate,
                             const char* energy, int year, int odometer, const char* service) {
        return SeededRecord{"vehicles",
            Record{{"name", name}, {"model", model}, {"plate", plate}, {"energy", energy},
                {"year", year}, {"odometer", odometer}, {"nextService", service}}};
    };
    const auto driver = [](const char* first, const char* last, const char* licence,
                            const char* group, const char* since, int score) {
        return SeededRecord{"drivers",
            Record{{"firstname", first}, {"lastname", last}, {"licence", licence}, {"group", group},
                {"since", since}, {"score", score}}};
    };
    const auto group = [](const char* name, const char* members, const char* vehicles,
                           const char* role) {
        return SeededRecord{"account-groups",
            Record{{"name", name}, {"members", members}, {"vehicles", vehicles}, {"role", role}}};
    };
    const auto ticket = [](const char* date, const char* subject, const char* message,
                            const char* state) {
        return SeededRecord{"tickets",
            Record{{"date", date}, {"subject", subject}, {"message", message}, {"state", state}}};
    };
    return {
        vehicle("Pebble", "Halden Orla 1.2", "EL 204 KT", "Petrol", 2021, 48210, "2026-11-14"),
        vehicle("Comet", "Corvane Lumo", "EL 771 VX", "Electric", 2024, 21986, "2027-02-03"),
        vehicle(
            "Badger", "Brandvik Fjell Estate", "EL 318 RN", "Diesel", 2019, 112450, "2026-11-28"),
        vehicle("Sparrow", "Tamsin T4 Hybrid", "EL 590 MA", "Hybrid", 2023, 30875, "2027-01-19"),
        vehicle(
            "Parcel One", "Corvane Carry E", "EL 902 PC", "Electric", 2025, 17304, "2026-12-09"),
        driver("Robin", "Alder", "B, BE", "Household", "2021-03-12", 91),
        driver("Mika", "Thorne", "B", "Household", "2021-03-12", 87),
        driver("Jo", "Fennel", "B, C1", "Field team", "2023-06-01", 94),
        driver("Sasha", "Brook", "B", "Field team", "2024-01-15", 82),
        driver("Ellis", "Rowan", "B", "Weekend club", "2025-05-20", 88),
        group("Household", "Robin Alder, Mika Thorne", "Pebble, Comet", "Owner"),
        group("Field team", "Jo Fennel, Sasha Brook, Robin Alder", "Badger, Parcel One", "Owner"),
        group("Weekend club", "Ellis Rowan, Robin Alder", "Sparrow", "Member"),
        ticket("2026-08-04", "Odometer of Badger jumps by 100 km",
            "Since the last import the odometer is 100 km ahead.", "Solved"),
        ticket("2026-09-21", "Share a report with my accountant",
            "Can a report be sent every month without me?", "Answered"),
        ticket("2026-10-26", "Charging prices at night",
            "The hub at Station Square has a night tariff. How do I enter it?", "Open"),
    };
}

} // namespace demo
