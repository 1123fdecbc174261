#include "platform/gtk/sparkle/UpdateRequest.h"

namespace gtk {

using platform::NSError;

namespace {

constexpr unsigned secondsToWait = 30; // while nothing at all comes

ObjectPointer<SoupSession> makeSession()
{
    auto session = HttpRequest::makeSession(secondsToWait);
    soup_session_remove_feature_by_type(session.get(), SOUP_TYPE_CONTENT_DECODER);
    return session;
}

NSError explanation(const HttpRequest::Failure& failure, const std::string& tooLongText)
{
    using enum HttpRequest::Failure::Reason;
    switch (failure.reason) {
    case badAddress:
        return {"The update server uses an address that is not secure (https)."};
    case noAnswer:
        return {"The update server cannot be reached: " + failure.detail + "."};
    case badStatus:
        return {"The update server has nothing at this address (" + failure.detail + ")."};
    case brokenOff:
        return {"The download broke off: " + failure.detail + "."};
    case tooLong:
        return {tooLongText};
    case refused:
        break;
    }
    return {"The download cannot be kept: there is no room for it."};
}

} // namespace

UpdateRequest::UpdateRequest(Options options, Handlers handlers)
    : request_(makeSession().get(),
        {
            .address = std::move(options.address),
            .mostBytes = options.mostBytes,
            .isSecureOnly = true,
            .trust = std::move(options.trust),
        },
        {
            .receive = std::move(handlers.receive),
            .finish =
                [tooLong = std::move(options.tooLong), finish = std::move(handlers.finish)](
                    const auto& failure) {
                    finish(failure ? std::optional(explanation(*failure, tooLong)) : std::nullopt);
                },
        })
{
}

} // namespace gtk
