#include "http/Answer.h"

#include <cstdint>
#include <new>
#include <zlib.h>

namespace demo {

namespace {

std::string tagText(std::string_view bytes)
{
    constexpr char digits[] = "0123456789abcdef";
    std::uint64_t hash = 0xcbf29ce484222325;
    for (char byte : bytes)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;

    std::string tag;
    for (int shift = 60; shift >= 0; shift -= 4)
        tag += digits[(hash >> shift) & 0xF];
    return tag;
}

bool acceptsGzip(const Request& request)
{
    return request.header("accept-encoding").find("gzip") != std::string::npos;
}

std::string gzipped(const std::string& text)
{
    constexpr int gzipFormat = 16;
    z_stream stream{};
    if (deflateInit2(&stream, 6, Z_DEFLATED, MAX_WBITS + gzipFormat, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::bad_alloc();
    std::string bytes(deflateBound(&stream, text.size()), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
    stream.avail_in = static_cast<uInt>(text.size());
    stream.next_out = reinterpret_cast<Bytef*>(bytes.data());
    stream.avail_out = static_cast<uInt>(bytes.size());
    deflate(&stream, Z_FINISH); // Ends in one call: the bound leaves room for everything.
    bytes.resize(stream.total_out);
    deflateEnd(&stream);
    return bytes;
}

} // namespace

Answer&& Answer::with(std::string name, std::string value) &&
{
    headers.emplace_back(std::move(name), std::move(value));
    return std::move(*this);
}

Answer typedAnswer(std::string_view contentType, std::string body, unsigned status)
{
    return Answer{
        .status = status,
        .headers = {{"Content-Type", std::string(contentType)}},
        .body = std::move(body),
    };
}

Answer htmlAnswer(std::string body, unsigned status)
{
    return typedAnswer("text/html; charset=utf-8", std::move(body), status)
        .with("Cache-Control", "no-store");
}

Answer jsonAnswer(const nlohmann::json& value, unsigned status)
{
    // Text that came from a client may be no UTF-8; it must not end the program.
    return typedAnswer("application/json",
        value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace), status)
        .with("Cache-Control", "no-store");
}

Answer errorAnswer(unsigned status, std::string_view message)
{
    return jsonAnswer({{"message", message}}, status);
}

Answer redirectAnswer(std::string address, unsigned status)
{
    return Answer{.status = status}.with("Location", std::move(address));
}

Answer attachmentAnswer(std::string_view contentType, std::string_view fileName, std::string body)
{
    return typedAnswer(contentType, std::move(body))
        .with("Content-Disposition", "attachment; filename=\"" + std::string(fileName) + '"')
        .with("Cache-Control", "no-store");
}

Answer cachedAnswer(const Request& request, std::string_view contentType, std::string body)
{
    // A strong tag stands for exact bytes, so each encoding has its own.
    const bool isGzipped = acceptsGzip(request);
    const std::string tag = '"' + tagText(body) + (isGzipped ? "-gzip\"" : "\"");
    const std::string known = request.header("if-none-match");

    Answer answer{.status = 304};
    if (known != "*" && known.find(tag) == std::string::npos) {
        answer = typedAnswer(contentType, isGzipped ? gzipped(body) : std::move(body));
        if (isGzipped)
            answer.headers.emplace_back("Content-Encoding", "gzip");
    }
    return std::move(answer)
        .with("ETag", tag)
        .with("Cache-Control", "private, max-age=600")
        .with("Vary", "Accept-Encoding");
}

} // namespace demo
