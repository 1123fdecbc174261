#include "platform/gtk/diagnosis/Report.h"
#include "platform/gtk/network/HostTrust.h"

#include <libsoup/soup.h>

namespace gtk {

namespace {

constexpr guint patience = 5; // seconds; less than the check has
constexpr gint64 renewalDays = 14; // before its end a certificate should have been renewed

struct Flaw {
    GTlsCertificateFlags flag;
    const char* text;
};

constexpr Flaw flaws[] = {
    {G_TLS_CERTIFICATE_EXPIRED, "its time is over"},
    {G_TLS_CERTIFICATE_NOT_ACTIVATED, "its time has not come"},
    {G_TLS_CERTIFICATE_BAD_IDENTITY, "it belongs to another host"},
    {G_TLS_CERTIFICATE_REVOKED, "it has been revoked"},
    {G_TLS_CERTIFICATE_UNKNOWN_CA, "its issuer is not trusted"},
    {G_TLS_CERTIFICATE_INSECURE, "its signature is too weak"},
};

// What became of the certificate that the server has shown.
struct Trust {
    HostTrust own; // what the user trusts beside the system
    GTlsCertificateFlags refusal = {}; // nothing when it was accepted
};

gboolean judge(
    SoupMessage* message, GTlsCertificate* certificate, GTlsCertificateFlags refusal, gpointer data)
{
    auto& trust = *static_cast<Trust*>(data);
    g_autofree char* address = g_uri_to_string(soup_message_get_uri(message));
    const bool isAccepted = trust.own.vouchesFor(certificate, address);
    trust.refusal = isAccepted ? GTlsCertificateFlags{} : refusal;
    return isAccepted;
}

const char* flawOf(GTlsCertificateFlags refusal)
{
    for (const auto& [flag, text] : flaws) {
        if (refusal & flag)
            return text;
    }
    return "it is not valid";
}

Finding certificateFinding(GTlsCertificate* certificate, GTlsCertificateFlags refusal)
{
    g_autofree char* issuer = nullptr;
    g_autoptr(GDateTime) end = nullptr;
    g_object_get(certificate, "issuer-name", &issuer, "not-valid-after", &end, nullptr);
    g_autofree char* day = end ? g_date_time_format(end, "%Y-%m-%d") : nullptr;
    Finding result = {
        .title = "Certificate",
        .finding = std::string("issued by ") + (issuer ? issuer : "nobody") + ", valid until "
            + (day ? day : "an unknown day"),
    };
    if (refusal) {
        result.verdict = Verdict::problem;
        result.finding += std::string("; ") + flawOf(refusal);
        result.advice = "Check the clock of this computer. A proxy or a virus scanner may stand "
                        "between it and the service.";
        return result;
    }
    g_autoptr(GDateTime) now = g_date_time_new_now_utc();
    if (end && g_date_time_difference(end, now) < renewalDays * G_TIME_SPAN_DAY) {
        result.verdict = Verdict::warning;
        result.advice = "Tell the service that its certificate ends soon.";
    }
    return result;
}

Finding serviceFinding(
    const std::string& origin, SoupMessage* message, const GError* error, const Trust& trust)
{
    if (trust.refusal) {
        return {"Service", origin + " answers, but cannot prove that it is the service",
            Verdict::problem, "Nothing is sent to it; see its certificate."};
    }
    if (error) {
        return {"Service", origin + " cannot be reached: " + error->message, Verdict::problem,
            "Check the connection to the Internet, and a proxy or firewall."};
    }
    const auto status = soup_message_get_status(message);
    auto finding = origin + " answers (" + std::to_string(status) + ")";
    if (SOUP_STATUS_IS_SUCCESSFUL(status))
        return {"Service", std::move(finding)};
    return {"Service", std::move(finding), Verdict::problem,
        "The service has no page to show at the moment. Try again later."};
}

} // namespace

std::vector<Finding> checkService(
    const std::string& origin, const std::optional<HostCertificate>& certificate)
{
    Trust trust = {.own = HostTrust(certificate)};
    const ObjectPointer<SoupSession> session(soup_session_new_with_options(
        "timeout", patience, "user-agent", "VelmaroOnline/" VELMARO_VERSION, nullptr));
    const ObjectPointer<SoupMessage> message(
        soup_message_new(SOUP_METHOD_GET, (origin + "/online").c_str()));
    g_signal_connect(message.get(), "accept-certificate", G_CALLBACK(judge), &trust);

    // The answer's first bytes say enough.
    g_autoptr(GError) error = nullptr;
    const ObjectPointer<GInputStream> stream(
        soup_session_send(session.get(), message.get(), nullptr, &error));

    std::vector<Finding> findings = {serviceFinding(origin, message.get(), error, trust)};
    if (auto* shown = soup_message_get_tls_peer_certificate(message.get()))
        findings.push_back(certificateFinding(shown, trust.refusal));
    return findings;
}

} // namespace gtk
