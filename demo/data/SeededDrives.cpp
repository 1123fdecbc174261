#include "data/SeededDrives.h"

#include "data/Dates.h"
#include "data/Random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace demo {

namespace {

constexpr std::uint64_t seed = 20261031;
constexpr int daysOfHistory = 200;

struct Habit {
    const char* vehicle;
    const char* driver;
    const char* purpose;
    const char* home;
    std::array<const char*, 5> destinations;
    double likelihood; ///< Of a drive there and back on a working day.
    double weekendLikelihood;
    double odometer; ///< At the start of the history.
    double tankOrBattery; ///< Litres or kilowatt hours used before filling up.
    double usePer100Kilometres; ///< Litres or kilowatt hours.
    double price; ///< Per litre or kilowatt hour.
    bool isElectric;
};

constexpr Habit habits[] = {
    {"Comet", "Robin Alder", "Commute", "Orchard Rise",
        {"Foundry Business Park", "Foundry Business Park", "Ellery Polytechnic", "Market Hall",
            "Maritime Library"},
        0.46, 0.16, 19'300, 12, 16.2, 0.38, true},
    {"Pebble", "Mika Thorne", "Personal", "Orchard Rise",
        {"Millrace Mall", "Lanternhill School", "Windmill Bakery", "Saint Bride Hospital",
            "Brackenmouth"},
        0.20, 0.34, 47'100, 11, 6.1, 1.74, false},
    {"Badger", "Jo Fennel", "Business", "North Depot",
        {"Cinderford Bay", "Upper Wren", "Kiln Lane Workshop", "Saint Odile",
            "Alder & Sons Joinery"},
        0.26, 0.03, 108'900, 17, 6.8, 1.66, false},
    {"Parcel One", "Sasha Brook", "Delivery", "North Depot",
        {"Harbour Ferry Terminal", "Hotel Meridian", "Market Hall", "Tidewater Theatre",
            "Ellery Airfield"},
        0.34, 0.06, 15'800, 13, 22.4, 0.41, true},
    {"Sparrow", "Ellis Rowan", "Personal", "Skylark Crescent",
        {"Gull Rock Campsite", "Tarn View Point", "Quarry Lake", "Great Pell", "Marrow Down"}, 0.03,
        0.40, 28'700, 9, 4.6, 1.74, false},
};

/// A vehicle on its way through the history.
struct Vehicle {
    double used = 0; ///< Litres or kilowatt hours since it was filled up.
    double odometer = 0; ///< In kilometres.
};

double rounded(double value, double step)
{
    return std::round(value / step) * step;
}

/// Two decimals, without the digits that binary fractions would drag along.
double cents(double value)
{
    return std::round(value * 100) / 100;
}

std::string clock(int minutes)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d", minutes / 60 % 24, minutes % 60);
    return text;
}

const Place& placeNamed(std::string_view name)
{
    const auto all = gazetteer();
    return *std::find_if(
        all.begin(), all.end(), [&](const Place& place) { return place.name == name; });
}

class History {
public:
    std::vector<SeededRecord> records;

    void addDay(std::chrono::sys_days day)
    {
        const bool isWeekend = std::chrono::weekday(day).iso_encoding() > 5;
        for (std::size_t index = 0; index < std::size(habits); ++index) {
            const Habit& habit = habits[index];
            const double likelihood = isWeekend ? habit.weekendLikelihood : habit.likelihood;
            if (random_.fraction() < likelihood)
                addRoundTrip(habit, vehicles_[index], dateText(day));
        }
    }

private:
    void addRoundTrip(const Habit& habit, Vehicle& vehicle, const std::string& date)
    {
        const char* destination = random_.oneOf(habit.destinations);
        const int leaving = random_.between(6 * 60 + 20, 11 * 60);
        const int returning = leaving + random_.between(90, 540);
        addDrive(habit, vehicle, date, leaving, habit.home, destination);
        addDrive(habit, vehicle, date, returning, destination, habit.home);
        if (vehicle.used > habit.tankOrBattery)
            fillUp(habit, vehicle, date);
    }

    void addDrive(const Habit& habit, Vehicle& vehicle, const std::string& date, int start,
        const char* from, const char* to)
    {
        const double straight =
            kilometresBetween(placeNamed(from).coordinate(), placeNamed(to).coordinate());
        const double distance = rounded(straight * random_.between(1.25, 1.6) + 0.6, 0.1);
        const double used = distance * habit.usePer100Kilometres / 100 * random_.between(0.9, 1.15);
        const double speed = 24 + std::min(distance, 30.0) * random_.between(0.7, 1.2);
        records.push_back({"drives",
            {{"date", date}, {"start", clock(start)},
                {"minutes", std::max(4, static_cast<int>(distance / speed * 60))}, {"from", from},
                {"to", to}, {"distance", cents(distance)}, {"vehicle", habit.vehicle},
                {"driver", habit.driver}, {"purpose", habit.purpose},
                {"cost", cents(used * habit.price)}, {"score", random_.between(68, 99)}}});
        vehicle.used += used;
        vehicle.odometer += distance;
    }

    void fillUp(const Habit& habit, Vehicle& vehicle, const std::string& date)
    {
        const auto stations = placesOfValue(habit.isElectric ? "charging_station" : "fuel");
        const std::string station(random_.oneOf(stations).name);
        const double amount = cents(vehicle.used);
        const double total = cents(amount * habit.price * random_.between(0.96, 1.05));
        vehicle.used = 0;
        if (habit.isElectric) {
            records.push_back({"charging",
                {{"date", date}, {"vehicle", habit.vehicle}, {"station", station},
                    {"energy", amount}, {"minutes", random_.between(24, 95)}, {"total", total}}});
            return;
        }
        records.push_back({"fuel",
            {{"date", date}, {"vehicle", habit.vehicle}, {"station", station}, {"litres", amount},
                {"total", total}, {"odometer", std::floor(habit.odometer + vehicle.odometer)}}});
    }

    Random random_{seed};
    std::array<Vehicle, std::size(habits)> vehicles_{};
};

} // namespace

std::vector<SeededRecord> seededDrives()
{
    History history;
    for (int daysAgo = daysOfHistory; daysAgo >= 0; --daysAgo)
        history.addDay(today - std::chrono::days(daysAgo));
    return std::move(history.records);
}

std::vector<Coordinate> seededWay(int driveId, std::string_view from, std::string_view to)
{
    const auto known = [](std::string_view name) {
        const auto all = gazetteer();
        return std::any_of(
            all.begin(), all.end(), [&](const Place& place) { return place.name == name; });
    };
    if (!known(from) || !known(to))
        return {};

    constexpr int legs = 14;
    Random random(seed + static_cast<std::uint64_t>(driveId));
    const Coordinate start = placeNamed(from).coordinate();
    const Coordinate end = placeNamed(to).coordinate();
    const double bend = random.between(-0.35, 0.35);
    const double wobble = 0.035;
    std::vector<Coordinate> way{start};
    for (int leg = 1; leg < legs; ++leg) {
        const double share = static_cast<double>(leg) / legs;
        const double aside = bend * std::sin(share * 3.14159) + random.between(-wobble, wobble);
        const double north = end.latitude - start.latitude;
        const double east = end.longitude - start.longitude;
        way.push_back({
            .latitude = start.latitude + north * share + east * aside,
            .longitude = start.longitude + east * share - north * aside,
        });
    }
    way.push_back(end);
    return way;
}

} // namespace demo
