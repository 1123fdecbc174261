#include "DemoServiceProcess.h"

#include <libsoup/soup.h>
#include <regex>
#include <stdexcept>

namespace desktop {

namespace {

// The body of the answer. Throws std::runtime_error when there is none.
std::string ask(
    const std::string& method, const std::string& address, const std::string& certificate)
{
    GError* error = nullptr;
    GTlsDatabase* authorities = g_tls_file_database_new(certificate.c_str(), &error);
    SoupSession* session = soup_session_new_with_options("tls-database", authorities, nullptr);
    SoupMessage* message = soup_message_new(method.c_str(), address.c_str());
    GBytes* body = soup_session_send_and_read(session, message, nullptr, &error);

    std::string text;
    if (body) {
        gsize size = 0;
        const auto* bytes = static_cast<const char*>(g_bytes_get_data(body, &size));
        text.assign(bytes, size);
        g_bytes_unref(body);
    }
    g_object_unref(message);
    g_object_unref(session);
    g_clear_object(&authorities);
    if (error) {
        const std::runtime_error failure(method + " " + address + ": " + error->message);
        g_error_free(error);
        throw failure;
    }
    return text;
}

} // namespace

DemoServiceProcess::DemoServiceProcess(Options options)
{
    const std::filesystem::path folder = std::filesystem::path(std::getenv("HOME")) / "demo";
    std::vector<std::string> arguments = {
        VELMARO_DEMO_SERVICE, "--port", std::to_string(options.port), "--folder", folder};
    if (options.isHostile)
        arguments.emplace_back("--hostile");
    process_ = std::make_unique<Process>(arguments);

    const std::regex announcement("service: (https://\\S+)\\s+Certificate: (.+)\n");
    std::smatch found;
    std::string output;
    const bool isUp = eventually([&] {
        output = process_->output();
        return std::regex_search(output, found, announcement) || !process_->isRunning();
    });
    if (!isUp || found.empty())
        throw std::runtime_error("the demo service does not start: " + process_->errors());
    origin_ = found[1];
    certificate_ = found[2];
}

Process::Environment DemoServiceProcess::clientEnvironment() const
{
    return {
        {"VELMARO_SERVICE_ORIGIN", origin_},
        {"VELMARO_SERVICE_CERTIFICATE", certificate_},
        {"VELMARO_CHECKOUT_HOSTS", "pay.localhost sandbox.pay.localhost"},
    };
}

int DemoServiceProcess::port() const
{
    return std::stoi(origin_.substr(origin_.rfind(':') + 1));
}

std::vector<DemoServiceProcess::Request> DemoServiceProcess::requests() const
{
    std::vector<Request> result;
    for (const auto& entry :
        nlohmann::json::parse(ask("GET", origin_ + "/demo/requests", certificate_))) {
        result.push_back({
            .method = entry["method"],
            .path = entry["path"],
            .query = entry["query"],
            .headers = entry["headers"],
            .status = entry["status"],
        });
    }
    return result;
}

std::vector<DemoServiceProcess::Request> DemoServiceProcess::requests(const std::string& path) const
{
    auto result = requests();
    std::erase_if(result, [&](const Request& request) { return request.path != path; });
    return result;
}

bool DemoServiceProcess::isAsked(const std::string& path, std::size_t times) const
{
    return eventually([&] { return requests(path).size() >= times; });
}

void DemoServiceProcess::forgetRequests()
{
    ask("POST", origin_ + "/demo/reset", certificate_);
}

} // namespace desktop
