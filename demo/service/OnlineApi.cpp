#include "service/OnlineApi.h"

#include "data/SeededDrives.h"
#include "data/Summary.h"
#include "service/ImportedTable.h"
#include "service/Session.h"
#include "service/Stations.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace demo {

namespace {

using nlohmann::json;

constexpr std::size_t longestName = 100;
constexpr std::size_t mostImportedRows = 20'000;
constexpr std::size_t mostReceivedImports = 100;

Answer notFound()
{
    return errorAnswer(404, "There is nothing of this name.");
}

std::string textMember(const json& object, const char* name)
{
    const auto found = object.find(name);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

double coordinate(const Request& request, const std::string& name, double fallback, double limit)
{
    const std::string text = request.queryItem(name);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isValid = error == std::errc() && value >= -limit && value <= limit;
    return isValid ? value : fallback;
}

/// Newest first; records without a date keep their order behind those with one.
bool isNewer(const json* first, const json* second)
{
    const auto key = [](const json& record) {
        return std::pair(record.value("date", std::string()), record["id"].get<int>());
    };
    return key(*first) > key(*second);
}

} // namespace

Answer OnlineApi::answer(const Request& request, const std::string& name)
{
    if (request.method == "GET" || request.method == "HEAD")
        return read(request, name);
    if (request.method == "POST")
        return write(request, name);
    return errorAnswer(405, "Only GET and POST are known here.").with("Allow", "GET, POST");
}

Answer OnlineApi::read(const Request& request, const std::string& name) const
{
    if (name == "session")
        return jsonAnswer({{"user", signedInUser(request)}});
    if (name == "dashboard")
        return jsonAnswer(dashboardSummary(data_));
    if (name == "reports")
        return jsonAnswer(reportSummary(data_));
    if (name == "stations") {
        const Coordinate centre{
            .latitude = coordinate(request, "lat", cityCentre.latitude, 90),
            .longitude = coordinate(request, "lng", cityCentre.longitude, 180),
        };
        return jsonAnswer({{"stations", stationsAround(centre, request.queryItem("kind"))}});
    }
    if (name.starts_with("drives/")) {
        int id = 0;
        const auto [end, error] = std::from_chars(name.data() + 7, name.data() + name.size(), id);
        const bool isNumber = error == std::errc() && end == name.data() + name.size();
        return isNumber ? drive(id) : notFound();
    }
    const Collection* collection = data_.find(name);
    return collection ? listing(*collection, request) : notFound();
}

Answer OnlineApi::write(const Request& request, const std::string& name)
{
    if (name == "sign-out")
        return signedOut(jsonAnswer({{"user", nullptr}}));

    const json body = json::parse(request.body, nullptr, false);
    if (!body.is_object())
        return errorAnswer(400, "The body needs to be a JSON object.");
    if (name == "sign-in")
        return signIn(body);
    if (name == "import")
        return import(body);
    if (name == "import-received") {
        if (receivedImports_.size() == mostReceivedImports)
            receivedImports_.erase(0);
        receivedImports_.push_back(body);
        return jsonAnswer({{"received", true}});
    }
    Collection* collection = data_.find(name);
    if (!collection)
        return notFound();
    try {
        return jsonAnswer(collection->add(body), 201);
    } catch (const std::invalid_argument& problem) {
        return errorAnswer(422, problem.what());
    }
}

Answer OnlineApi::signIn(const json& body) const
{
    const std::string firstname = textMember(body, "firstname");
    const std::string lastname = textMember(body, "lastname");
    if (firstname.empty() && lastname.empty())
        return errorAnswer(422, "Please enter a name. Any name will do.");
    if (firstname.size() > longestName || lastname.size() > longestName)
        return errorAnswer(422, "Please enter a shorter name.");
    return signedIn(jsonAnswer({{"user", {{"firstname", firstname}, {"lastname", lastname}}}}),
        firstname, lastname);
}

Answer OnlineApi::import(const json& body)
{
    Collection* collection = data_.find(textMember(body, "kind"));
    if (!collection)
        return errorAnswer(422, "Choose what the file holds: drives, fuel or charging.");

    const auto table = importedTable(textMember(body, "text"), mostImportedRows);
    std::size_t imported = 0;
    for (const auto& row : table) {
        try {
            collection->add(row);
            ++imported;
        } catch (const std::invalid_argument&) {
            continue; // The page tells how many rows did not fit.
        }
    }
    return jsonAnswer({{"imported", imported}, {"skipped", table.size() - imported}});
}

Answer OnlineApi::listing(const Collection& collection, const Request& request) const
{
    std::vector<const json*> records;
    const std::string vehicle = request.queryItem("vehicle");
    for (const auto& record : collection.records()) {
        if (vehicle.empty() || record.value("vehicle", std::string()) == vehicle)
            records.push_back(&record);
    }
    if (!records.empty() && records[0]->contains("date"))
        std::sort(records.begin(), records.end(), isNewer);

    const std::size_t total = records.size();
    const auto offset = static_cast<std::size_t>(std::max(0, request.queryNumber("offset", 0)));
    const auto limit = static_cast<std::size_t>(std::max(0, request.queryNumber("limit", 1000)));
    auto page = json::array();
    for (std::size_t index = offset; index < total && page.size() < limit; ++index)
        page.push_back(*records[index]);
    return jsonAnswer({{"total", total}, {"records", std::move(page)}});
}

Answer OnlineApi::drive(int id) const
{
    const json* record = data_.at("drives").find(id);
    if (!record)
        return errorAnswer(404, "There is no drive of this number.");
    json drive = *record;
    drive["way"] = json::array();
    for (const auto& [latitude, longitude] :
        seededWay(id, drive["from"].get<std::string>(), drive["to"].get<std::string>()))
        drive["way"].push_back({latitude, longitude});
    return jsonAnswer(drive);
}

} // namespace demo
