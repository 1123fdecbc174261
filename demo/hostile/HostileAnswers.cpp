#include "hostile/HostileAnswers.h"

#include "hostile/AttachmentName.h"
#include "service/Pages.h"

#include <algorithm>

namespace demo {

namespace {

constexpr int mostSeconds = 600;
constexpr int mostMebibytes = 256;
constexpr std::size_t mebibyte = 1024UL * 1024;
constexpr std::size_t deepNesting = 100'000;

Answer verbatim(std::string bytes, Delivery delivery = Delivery::verbatim)
{
    return Answer{.body = std::move(bytes), .delivery = delivery};
}

Answer slow(const Request& request)
{
    const int seconds = std::clamp(request.queryNumber("seconds", 3), 0, mostSeconds);
    Answer answer = htmlAnswer("<!doctype html><title>Slow</title><h1>Slow</h1>");
    answer.delay = std::chrono::seconds(seconds);
    return answer;
}

Answer never(const Request&)
{
    return Answer{.delivery = Delivery::silence};
}

Answer stalled(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 100000\r\n\r\n"
                    "<!doctype html><title>Stalled</title><h1>The rest never comes</h1>",
        Delivery::verbatimThenSilence);
}

Answer truncated(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nContent-Length: 100000\r\n"
                    "Connection: close\r\n\r\n<!doctype html><title>Truncated</title><h1>The conn");
}

Answer truncatedChunks(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nTransfer-Encoding: chunked\r\n"
                    "Connection: close\r\n\r\n40\r\n<!doctype html><title>Chunks</title>");
}

Answer truncatedDownload(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/csv\r\nContent-Length: 100000\r\n"
                    "Content-Disposition: attachment; filename=\"velmaro_truncated.csv\"\r\n"
                    "Connection: close\r\n\r\nid,date\r\n1,2026-10-");
}

Answer stalledDownload(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/csv\r\nContent-Length: 100000\r\n"
                    "Content-Disposition: attachment; filename=\"velmaro_stalled.csv\"\r\n"
                    "\r\nid,date\r\n1,2026-10-",
        Delivery::verbatimThenSilence);
}

Answer garbage(const Request&)
{
    return verbatim(std::string("\0\1\2 this is no HTTP\r\n\r\n", 23));
}

Answer hugeHeader(const Request&)
{
    return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\nX-Huge: "
        + std::string(mebibyte, 'x') + "\r\n\r\n<!doctype html><title>Huge header</title>");
}

Answer falseGzip(const Request&)
{
    return htmlAnswer("<!doctype html><title>Not compressed</title>")
        .with("Content-Encoding", "gzip");
}

Answer redirect(const Request& request)
{
    return redirectAnswer(request.queryItem("to", "/online"),
        static_cast<unsigned>(std::clamp(request.queryNumber("status", 302), 300, 308)));
}

Answer redirectElsewhere(const Request& request)
{
    return redirectAnswer(
        "https://elsewhere.localhost:" + std::to_string(request.port) + "/elsewhere");
}

Answer redirectLoop(const Request& request)
{
    const int turn = request.queryNumber("turn", 0) % 1'000'000;
    return redirectAnswer("/hostile/redirect-loop?turn=" + std::to_string(turn + 1));
}

Answer status(const Request& request)
{
    const auto code = static_cast<unsigned>(std::clamp(request.queryNumber("code", 500), 200, 599));
    return failurePage(code, "Status " + std::to_string(code), "This address answers so.");
}

Answer wrongType(const Request& request)
{
    return typedAnswer(request.queryItem("type", "application/octet-stream"),
        "<!doctype html><title>Wrong type</title><h1>Is this a page?</h1>");
}

Answer noType(const Request&)
{
    return Answer{.body = "<!doctype html><title>No type</title><h1>What is this?</h1>"};
}

Answer malformedJson(const Request&)
{
    return typedAnswer("application/json", "{\"features\": [{\"type\": \"Feature\", ");
}

Answer deepJson(const Request&)
{
    return typedAnswer(
        "application/json", std::string(deepNesting, '[') + std::string(deepNesting, ']'));
}

Answer oddFeatures(const Request&)
{
    return typedAnswer("application/json",
        R"({"type": "FeatureCollection", "features": [null, 7, "x", [], {}, {"geometry": null},
{"geometry": {"coordinates": []}, "properties": {"name": "No coordinates"}},
{"geometry": {"coordinates": ["1", "2"]}, "properties": {"name": "Texts"}},
{"geometry": {"coordinates": [1e400, 91]}, "properties": {"name": "Beyond"}},
{"geometry": {"coordinates": [-31.42, 47.31]}, "properties": {"name": 5, "street": null}},
{"geometry": {"coordinates": [-31.42, 47.31]}, "properties": {"name": "The only good one"}}]})");
}

Answer bigDownload(const Request& request)
{
    const int mebibytes = std::clamp(request.queryNumber("mebibytes", 50), 0, mostMebibytes);
    return attachmentAnswer("application/octet-stream", "velmaro_big.zip",
        std::string(static_cast<std::size_t>(mebibytes) * mebibyte, '\x5A'));
}

/// Sent verbatim, since an honest server would refuse to write some of these headers.
Answer attachment(const Request& request)
{
    const std::string key = request.queryItem("name");
    for (const auto& [name, disposition] : attachmentNames()) {
        if (name == key) {
            return verbatim("HTTP/1.1 200 OK\r\nContent-Type: text/csv\r\nContent-Length: 9\r\n"
                            "Connection: close\r\nContent-Disposition: attachment"
                + std::string(disposition) + "\r\n\r\nid,date\r\n");
        }
    }
    return errorAnswer(404, "No such name.");
}

Answer attachments(const Request&)
{
    std::string items;
    for (const auto& [name, disposition] : attachmentNames()) {
        items.append("<li><a href=\"/hostile/attachment?name=").append(name).append("\">");
        items.append(name).append("</a></li>\n");
    }
    return htmlAnswer("<!doctype html><html lang=\"en\"><meta charset=\"utf-8\">"
                      "<title>Attachments</title><h1>Attachments</h1><ul>\n"
        + items + "</ul></html>");
}

struct HostileRoute {
    std::string_view path;
    Answer (*answer)(const Request&);
};

constexpr HostileRoute hostileRoutes[] = {
    {"/hostile/slow", slow},
    {"/hostile/never", never},
    {"/hostile/stalled", stalled},
    {"/hostile/truncated", truncated},
    {"/hostile/truncated-chunks", truncatedChunks},
    {"/hostile/truncated-download", truncatedDownload},
    {"/hostile/stalled-download", stalledDownload},
    {"/hostile/garbage", garbage},
    {"/hostile/huge-header", hugeHeader},
    {"/hostile/false-gzip", falseGzip},
    {"/hostile/redirect", redirect},
    {"/hostile/redirect-elsewhere", redirectElsewhere},
    {"/hostile/redirect-loop", redirectLoop},
    {"/hostile/status", status},
    {"/hostile/wrong-type", wrongType},
    {"/hostile/no-type", noType},
    {"/hostile/malformed-json", malformedJson},
    {"/hostile/deep-json", deepJson},
    {"/hostile/odd-features", oddFeatures},
    {"/hostile/big-download", bigDownload},
    {"/hostile/attachment", attachment},
    {"/hostile/attachments", attachments},
};

} // namespace

std::optional<Answer> hostileAnswer(const Request& request)
{
    if (request.path != "/hostile" && !request.path.starts_with("/hostile/"))
        return std::nullopt;
    for (const auto& [path, answer] : hostileRoutes) {
        if (request.path == path)
            return answer(request);
    }
    const std::string name = request.path == "/hostile" ? "/hostile/index" : request.path;
    if (const auto page = embeddedPage(name.substr(1) + ".html"))
        return htmlAnswer(std::string(*page));
    return failurePage(404, "Page not found", "Nothing misbehaves at this address.");
}

} // namespace demo
