#include "data/Summary.h"

#include "data/Dates.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <string>

namespace demo {

namespace {

using nlohmann::json;

std::string monthOf(const json& record)
{
    return record["date"].get_ref<const std::string&>().substr(0, 7);
}

std::string month(int monthsAgo)
{
    using namespace std::chrono;
    const year_month_day date(today);
    const year_month past = year_month(date.year(), date.month()) - months(monthsAgo);
    return dateText(sys_days(past / day(1))).substr(0, 7);
}

/// A plain loop: the collections are small, and reading them is all that these summaries do.
template <class Accepts>
double total(const Collection& collection, const char* field, const Accepts& accepts)
{
    double sum = 0;
    for (const auto& record : collection.records()) {
        if (accepts(record))
            sum += record[field].get<double>();
    }
    return sum;
}

template <class Accepts> int count(const Collection& collection, const Accepts& accepts)
{
    const auto& records = collection.records();
    return static_cast<int>(std::count_if(records.begin(), records.end(), accepts));
}

json monthTotals(const DemoData& data, const std::string& name)
{
    const auto isInMonth = [&](const json& record) { return monthOf(record) == name; };
    return {
        {"month", name},
        {"distance", total(data.at("drives"), "distance", isInMonth)},
        {"drives", count(data.at("drives"), isInMonth)},
        {"minutes", total(data.at("drives"), "minutes", isInMonth)},
        {"litres", total(data.at("fuel"), "litres", isInMonth)},
        {"fuelCost", total(data.at("fuel"), "total", isInMonth)},
        {"energy", total(data.at("charging"), "energy", isInMonth)},
        {"chargingCost", total(data.at("charging"), "total", isInMonth)},
    };
}

json weekTotals(const DemoData& data, const std::string& from, const std::string& to)
{
    const auto isInWeek = [&](const json& record) {
        const auto& date = record["date"].get_ref<const std::string&>();
        return from <= date && date <= to;
    };
    std::map<std::string, double> distanceByPurpose;
    for (const auto& drive : data.at("drives").records()) {
        if (isInWeek(drive))
            distanceByPurpose[drive["purpose"]] += drive["distance"].get<double>();
    }
    return {
        {"from", from},
        {"to", to},
        {"distance", distanceByPurpose},
        {"drives", count(data.at("drives"), isInWeek)},
        {"litres", total(data.at("fuel"), "litres", isInWeek)},
        {"energy", total(data.at("charging"), "energy", isInWeek)},
    };
}

json weeks(const DemoData& data, int howMany)
{
    using std::chrono::days;
    auto result = json::array();
    for (int weeksAgo = howMany - 1; weeksAgo >= 0; --weeksAgo) {
        const auto last = today - days(7 * weeksAgo);
        result.push_back(weekTotals(data, dateText(last - days(6)), dateText(last)));
    }
    return result;
}

json latest(const Collection& collection, std::size_t howMany)
{
    std::vector<json> records(collection.records().begin(), collection.records().end());
    std::sort(records.begin(), records.end(), [](const json& first, const json& second) {
        return std::tie(first["date"], first["id"]) > std::tie(second["date"], second["id"]);
    });
    records.resize(std::min(records.size(), howMany));
    return records;
}

json dueServices(const DemoData& data)
{
    const std::string horizon = dateText(today + std::chrono::days(45));
    auto due = json::array();
    for (const auto& vehicle : data.at("vehicles").records()) {
        if (vehicle["nextService"].get_ref<const std::string&>() <= horizon)
            due.push_back({{"vehicle", vehicle["name"]}, {"date", vehicle["nextService"]}});
    }
    return due;
}

} // namespace

json dashboardSummary(const DemoData& data)
{
    return {
        {"today", dateText(today)},
        {"thisMonth", monthTotals(data, month(0))},
        {"lastMonth", monthTotals(data, month(1))},
        {"weeks", weeks(data, 12)},
        {"drives", latest(data.at("drives"), 6)},
        {"due", dueServices(data)},
    };
}

json reportSummary(const DemoData& data)
{
    auto months = json::array();
    for (int monthsAgo = 5; monthsAgo >= 0; --monthsAgo)
        months.push_back(monthTotals(data, month(monthsAgo)));

    auto vehicles = json::array();
    const std::string first = month(5);
    for (const auto& vehicle : data.at("vehicles").records()) {
        const auto isMine = [&](const json& record) {
            return record["vehicle"] == vehicle["name"] && monthOf(record) >= first;
        };
        vehicles.push_back({
            {"vehicle", vehicle["name"]},
            {"model", vehicle["model"]},
            {"distance", total(data.at("drives"), "distance", isMine)},
            {"drives", count(data.at("drives"), isMine)},
            {"fuelCost", total(data.at("fuel"), "total", isMine)},
            {"chargingCost", total(data.at("charging"), "total", isMine)},
        });
    }
    return {{"today", dateText(today)}, {"months", months}, {"vehicles", vehicles}};
}

} // namespace demo
