#include "platform/gtk/diagnosis/Report.h"
#include "platform/gtk/network/HttpRequest.h"

#include <glibmm/main.h>

namespace gtk {

namespace {

constexpr unsigned patience = 5; // seconds; less than the check has
constexpr gint64 renewalDays = 14; // a certificate should be renewed so long before its end

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

Finding serviceFinding(const std::string& origin, const HttpRequest& request,
    const std::optional<HttpRequest::Failure>& failure)
{
    if (request.certificateFlaws()) {
        return {"Service", origin + " answers, but cannot prove that it is the service",
            Verdict::problem, "Nothing is sent to it; see its certificate."};
    }
    if (failure && failure->reason == HttpRequest::Failure::Reason::noAnswer) {
        return {"Service", origin + " cannot be reached: " + failure->detail, Verdict::problem,
            "Check the connection to the Internet, and a proxy or firewall."};
    }
    auto finding = origin + " answers (" + std::to_string(request.status()) + ")";
    if (SOUP_STATUS_IS_SUCCESSFUL(request.status()))
        return {"Service", std::move(finding)};
    return {"Service", std::move(finding), Verdict::problem,
        "The service has no page to show at the moment. Try again later."};
}

} // namespace

std::vector<Finding> checkService(
    const std::string& origin, const std::shared_ptr<const HostTrust>& trust)
{
    // Waits for the answer alone: what the program has queued is not for this process.
    const auto context = Glib::MainContext::create();
    const auto loop = Glib::MainLoop::create(context);
    context->push_thread_default();

    const auto session = HttpRequest::makeSession(patience);
    std::optional<HttpRequest::Failure> failure;
    const HttpRequest request(session.get(), {.address = origin + "/online", .trust = trust},
        {
            .receive = [](std::string_view) { return false; },
            .finish =
                [&](auto reason) {
                    failure = std::move(reason);
                    loop->quit();
                },
        });
    loop->run();
    context->pop_thread_default();

    std::vector<Finding> findings = {serviceFinding(origin, request, failure)};
    if (auto* shown = request.certificate())
        findings.push_back(certificateFinding(shown, request.certificateFlaws()));
    return findings;
}

} // namespace gtk
