#include "service/Updates.h"

#include "service/Pages.h"

#include <algorithm>
#include <glib.h>
#include <gnutls/abstract.h>
#include <memory>
#include <stdexcept>

namespace demo {

namespace {

constexpr auto feedName = "appcast.xml";
constexpr auto packageName = "package.deb";

enum class Flaw {
    none,
    changedByte,
    foreignSignature,
    noSignature,
    cutShort,
    tooLong,
    stalls, ///< Half of the package comes, and then nothing.
    plainHttp,
    documentType, ///< In the feed, with entities that grow.
};

struct Offer {
    std::string_view kind;
    std::string_view version;
    std::string_view displayVersion;
    std::string_view package; ///< Version inside it.
    Flaw flaw = Flaw::none;
};

constexpr Offer offers[] = {
    {"newer", "900000", "2.0.0", "2.0.0"},
    {"current", "1", "1.0.0", "2.0.0"},
    {"older", "0.9", "0.9.0", "0.9.0"},
    {"downgrade", "900000", "2.0.0", "0.9.0"},
    {"tampered", "900000", "2.0.0", "2.0.0", Flaw::changedByte},
    {"bad-signature", "900000", "2.0.0", "2.0.0", Flaw::foreignSignature},
    {"unsigned", "900000", "2.0.0", "2.0.0", Flaw::noSignature},
    {"truncated", "900000", "2.0.0", "2.0.0", Flaw::cutShort},
    {"oversized", "900000", "2.0.0", "2.0.0", Flaw::tooLong},
    {"stalled", "900000", "2.0.0", "2.0.0", Flaw::stalls},
    {"plain-http", "900000", "2.0.0", "2.0.0", Flaw::plainHttp},
    {"entities", "900000", "2.0.0", "2.0.0", Flaw::documentType},
};

void require(int result)
{
    if (result < 0)
        throw std::runtime_error(std::string("signature: ") + gnutls_strerror(result));
}

gnutls_datum_t datum(std::string_view text)
{
    return {reinterpret_cast<unsigned char*>(const_cast<char*>(text.data())),
        static_cast<unsigned>(text.size())};
}

std::string base64(const gnutls_datum_t& bytes)
{
    const std::unique_ptr<char, decltype(&g_free)> text(
        g_base64_encode(bytes.data, bytes.size), g_free);
    return text.get();
}

/// Ed25519, in Base64.
std::string signature(std::string_view data)
{
    gnutls_privkey_t key = nullptr;
    require(gnutls_privkey_init(&key));
    const std::unique_ptr<std::remove_pointer_t<gnutls_privkey_t>, decltype(&gnutls_privkey_deinit)>
        owned(key, gnutls_privkey_deinit);
    const auto pem = datum(embeddedPage("updates/signing-key.pem").value());
    require(gnutls_privkey_import_x509_raw(key, &pem, GNUTLS_X509_FMT_PEM, nullptr, 0));

    const auto signedData = datum(data);
    gnutls_datum_t result = {};
    require(gnutls_privkey_sign_data2(key, GNUTLS_SIGN_EDDSA_ED25519, 0, &signedData, &result));
    auto text = base64(result);
    gnutls_free(result.data);
    return text;
}

std::string_view package(const Offer& offer)
{
    return embeddedPage("updates/velmaro-online-" + std::string(offer.package) + ".deb").value();
}

Answer feedAnswer(const Offer& offer, const Request& request)
{
    const auto data = package(offer);
    std::string signatureAttribute;
    if (offer.flaw == Flaw::foreignSignature)
        signatureAttribute = " sparkle:edSignature=\"" + signature("somebody else's") + '"';
    else if (offer.flaw != Flaw::noSignature)
        signatureAttribute = " sparkle:edSignature=\"" + signature(data) + '"';

    std::string text = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n";
    if (offer.flaw == Flaw::documentType)
        text += "<!DOCTYPE rss [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;\">]>\n";
    const std::string scheme = offer.flaw == Flaw::plainHttp ? "http" : "https";
    text += "<rss version=\"2.0\" xmlns:sparkle=\"https://velmaro.example/xml/sparkle\">\n"
            "<channel><title>Velmaro Online</title>\n<item>\n"
            "<title>Version "
        + std::string(offer.displayVersion) + "</title>\n<sparkle:version>"
        + std::string(offer.version) + "</sparkle:version>\n<sparkle:shortVersionString>"
        + std::string(offer.displayVersion)
        + "</sparkle:shortVersionString>\n<description><![CDATA[<h2>What is new</h2>"
          "<ul><li>Charging sessions show what they cost &amp; how long they took.</li>"
          "<li>Reports open <b>twice</b> as fast.</li></ul>]]></description>\n<enclosure url=\""
        + scheme + "://" + request.host + ':' + std::to_string(request.port) + "/demo/updates/"
        + std::string(offer.kind) + '/' + packageName + "\" length=\"" + std::to_string(data.size())
        + "\" type=\"application/vnd.debian.binary-package\"" + signatureAttribute
        + "/>\n</item>\n</channel></rss>\n";
    return typedAnswer("application/rss+xml; charset=utf-8", std::move(text));
}

Answer packageAnswer(const Offer& offer)
{
    constexpr std::string_view type = "application/vnd.debian.binary-package";
    std::string data(package(offer));
    switch (offer.flaw) {
    case Flaw::changedByte:
        data[data.size() / 2] = static_cast<char>(data[data.size() / 2] ^ 1);
        break;
    case Flaw::cutShort:
        data.resize(data.size() / 2);
        break;
    case Flaw::tooLong:
        data += "and more";
        break;
    case Flaw::stalls:
        return Answer{
            .body = "HTTP/1.1 200 OK\r\nContent-Type: " + std::string(type) + "\r\nContent-Length: "
                + std::to_string(data.size()) + "\r\n\r\n" + data.substr(0, data.size() / 2),
            .delivery = Delivery::verbatimThenSilence,
        };
    default:
        break;
    }
    return typedAnswer(type, std::move(data));
}

} // namespace

std::optional<Answer> updateAnswer(std::string_view path, const Request& request)
{
    const auto slash = path.find('/');
    const auto kind = path.substr(0, slash);
    const auto* offer = std::ranges::find(offers, kind, &Offer::kind);
    if (offer == std::end(offers) || slash == path.npos)
        return std::nullopt;
    const auto name = path.substr(slash + 1);
    if (name == feedName)
        return feedAnswer(*offer, request);
    if (name == packageName)
        return packageAnswer(*offer);
    return std::nullopt;
}

} // namespace demo
