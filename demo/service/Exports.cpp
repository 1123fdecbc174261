#include "service/Exports.h"

#include "service/InvoicePdf.h"
#include "service/ZipArchive.h"

namespace demo {

namespace {

std::string allRecords(const DemoData& data)
{
    nlohmann::json all{{"format", "velmaro"}, {"version", 1}};
    for (const auto& [name, collection] : data.collections())
        all[name] = collection.records();
    return all.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + '\n';
}

std::string archive(const DemoData& data)
{
    ZipArchive archive;
    archive.add("velmaro.json", allRecords(data));
    for (const auto& [name, collection] : data.collections())
        archive.add(name + ".csv", collection.commaSeparated());
    return archive.bytes();
}

std::string drivesTable(const DemoData& data)
{
    return data.at("drives").commaSeparated();
}

std::string invoice(const DemoData&)
{
    return invoicePdf();
}

struct Export {
    std::string_view fileName;
    std::string_view contentType;
    std::string (*content)(const DemoData&);
};

constexpr Export exports[] = {
    {"velmaro_export.vlarchive", "application/octet-stream", archive},
    {"velmaro_data.csv", "text/csv; charset=utf-8", drivesTable},
    {"velmaro_data.json", "application/json", allRecords},
    {"velmaro_archive.zip", "application/zip", archive},
    {"invoice.pdf", "application/pdf", invoice},
};

} // namespace

std::optional<Answer> exportAnswer(std::string_view fileName, const DemoData& data)
{
    for (const auto& [name, contentType, content] : exports) {
        if (name == fileName)
            return attachmentAnswer(contentType, name, content(data));
    }
    return std::nullopt;
}

} // namespace demo
