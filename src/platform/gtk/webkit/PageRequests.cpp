#include "platform/gtk/webkit/PageRequests.h"

#include "platform/gtk/webkit/EngineView.h"
#include "platform/webkit/WKUIDelegate.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gtk {

namespace {

using platform::URL;
using platform::WKNavigationAction;
using platform::WKNavigationActionPolicy;

constexpr guint middleButton = 2;

// The engine can load these schemes; for any other it would show an error page.
constexpr std::array<std::string_view, 5> loadableSchemes = {
    "https", "http", "about", "data", "blob"};

std::string_view schemeOf(std::string_view address)
{
    return address.substr(0, address.find(':'));
}

bool isLoadable(std::string_view address)
{
    return std::ranges::find(loadableSchemes, schemeOf(address)) != loadableSchemes.end();
}

// data: and blob: addresses; whether they are downloads is known only later.
bool isMadeByPage(std::string_view address)
{
    return schemeOf(address) == "data" || schemeOf(address) == "blob";
}

// The URL of an address that the engine tells. Absent for what the engine itself cannot make sense
// of and passes on as it was written, since the engine and we would read different hosts in it.
std::optional<URL> urlOfPageAddress(std::string_view address)
{
    auto url = URL::encodingInvalidCharacters(address);
    if (!url || (url->scheme() != "https" && url->scheme() != "http"))
        return url;

    // In a web address that the engine has understood no escapes are left in the host.
    const auto& text = url->absoluteString();
    const auto start = text.find("//");
    if (start == text.npos)
        return url;
    auto authority = std::string_view(text).substr(start + 2);
    authority = authority.substr(0, authority.find_first_of("/?#"));
    const auto host = authority.substr(authority.rfind('@') + 1); // all of it without an "@"
    return host.find('%') == host.npos ? url : std::nullopt;
}

// A middle click, which the engine does not treat as anything special.
bool asksForWindow(WebKitNavigationAction* action)
{
    return webkit_navigation_action_get_navigation_type(action)
        == WEBKIT_NAVIGATION_TYPE_LINK_CLICKED
        && webkit_navigation_action_get_mouse_button(action) == middleButton;
}

const char* addressOf(WebKitNavigationAction* action)
{
    return webkit_uri_request_get_uri(webkit_navigation_action_get_request(action));
}

// An answer without anything in it, or one that says that something went wrong, is no file.
bool carriesFile(WebKitURIResponse* response)
{
    const auto status = webkit_uri_response_get_status_code(response);
    return status == SOUP_STATUS_NONE || status == SOUP_STATUS_OK
        || status == SOUP_STATUS_NON_AUTHORITATIVE || status == SOUP_STATUS_PARTIAL_CONTENT;
}

// The engine takes paths, and decodes what looks like an escape in them.
std::string pathForEngine(const URL& file)
{
    std::string escaped;
    for (const char letter : file.path())
        escaped += letter == '%' ? "%25" : std::string(1, letter);
    return escaped;
}

// A question of the engine that is answered once. Without an answer it is refused in the end; the
// engine would take it for allowed.
class PendingDecision {
public:
    explicit PendingDecision(WebKitPolicyDecision* decision)
        : decision_(retain(decision))
    {
    }
    ~PendingDecision() { refuse(); }

    PendingDecision(const PendingDecision&) = delete;
    PendingDecision& operator=(const PendingDecision&) = delete;

    // The first of these counts.
    void allow() { answer(webkit_policy_decision_use); }
    void download() { answer(webkit_policy_decision_download); }
    void refuse() { answer(webkit_policy_decision_ignore); }

private:
    void answer(void (*choose)(WebKitPolicyDecision*))
    {
        if (const auto decision = std::move(decision_))
            choose(decision.get());
    }

    ObjectPointer<WebKitPolicyDecision> decision_; // null once it is answered
};

void give(WebKitFileChooserRequest* request, const std::optional<std::vector<URL>>& files)
{
    if (!files)
        return webkit_file_chooser_request_cancel(request);
    std::vector<std::string> paths;
    for (const auto& file : *files)
        paths.push_back(pathForEngine(file));
    std::vector<const char*> pointers;
    for (const auto& path : paths)
        pointers.push_back(path.c_str());
    pointers.push_back(nullptr);
    webkit_file_chooser_request_select_files(request, pointers.data());
}

} // namespace

PageRequests::PageRequests(EngineView& owner)
    : owner_(owner)
{
    auto* view = owner.native();
    signals_.connect(view, "decide-policy", G_CALLBACK(&PageRequests::decide), this);
    signals_.connect(view, "create", G_CALLBACK(&PageRequests::makeWindow), this);
    signals_.connect(view, "run-file-chooser", G_CALLBACK(&PageRequests::chooseFiles), this);
}

gboolean PageRequests::decide(WebKitWebView*, WebKitPolicyDecision* decision,
    WebKitPolicyDecisionType type, PageRequests* self)
{
    switch (type) {
    case WEBKIT_POLICY_DECISION_TYPE_NAVIGATION_ACTION:
        self->decideNavigation(WEBKIT_NAVIGATION_POLICY_DECISION(decision));
        return TRUE;
    case WEBKIT_POLICY_DECISION_TYPE_NEW_WINDOW_ACTION:
        webkit_policy_decision_use(decision); // leads to `makeWindow`, where that is decided
        return TRUE;
    case WEBKIT_POLICY_DECISION_TYPE_RESPONSE:
        return self->decideResponse(WEBKIT_RESPONSE_POLICY_DECISION(decision));
    }
    return FALSE;
}

void PageRequests::decideNavigation(WebKitNavigationPolicyDecision* decision)
{
    auto* action = webkit_navigation_policy_decision_get_navigation_action(decision);
    const char* address = addressOf(action);
    if (asksForWindow(action) && !isMadeByPage(address)) {
        webkit_policy_decision_ignore(WEBKIT_POLICY_DECISION(decision));
        askForWindow(address);
        return;
    }
    ask(WEBKIT_POLICY_DECISION(decision), address, isMadeByPage(address));
}

gboolean PageRequests::decideResponse(WebKitResponsePolicyDecision* decision)
{
    auto* response = webkit_response_policy_decision_get_response(decision);
    const char* address = webkit_uri_response_get_uri(response);
    auto* question = WEBKIT_POLICY_DECISION(decision);
    if (isMadeByPage(address)) {
        ask(question, address, false); // a download never reaches the response decision
        return TRUE;
    }
    if (webkit_response_policy_decision_is_mime_type_supported(decision) || !carriesFile(response))
        return FALSE;
    webkit_policy_decision_download(question);
    return TRUE;
}

void PageRequests::ask(WebKitPolicyDecision* question, const char* address, bool mayBeDownload)
{
    const auto pending = std::make_shared<PendingDecision>(question);
    const auto delegate = owner_.navigationDelegate.lock();
    if (!delegate)
        return isLoadable(address) ? pending->allow() : pending->refuse();

    const WKNavigationAction action{
        .requestURL = urlOfPageAddress(address),
        .shouldPerformDownload = mayBeDownload,
    };
    delegate->decidePolicy(owner_, action, [pending, mayBeDownload](auto policy) {
        switch (policy) {
        case WKNavigationActionPolicy::cancel:
            return pending->refuse();
        case WKNavigationActionPolicy::allow:
            return pending->allow();
        case WKNavigationActionPolicy::download:
            // The engine saves real downloads by itself, and asks again about the rest.
            return mayBeDownload ? pending->allow() : pending->download();
        }
    });
}

GtkWidget* PageRequests::makeWindow(
    WebKitWebView*, WebKitNavigationAction* action, PageRequests* self)
{
    self->askForWindow(addressOf(action));
    return nullptr;
}

void PageRequests::askForWindow(const char* address)
{
    // A view that the delegate makes is dropped: there is no place to show a second one.
    if (const auto delegate = owner_.uiDelegate.lock())
        delegate->createWebView(
            owner_, {.requestURL = urlOfPageAddress(address), .shouldPerformDownload = false});
}

gboolean PageRequests::chooseFiles(
    WebKitWebView*, WebKitFileChooserRequest* request, PageRequests* self)
{
    const auto delegate = self->owner_.uiDelegate.lock();
    if (!delegate) {
        webkit_file_chooser_request_cancel(request);
        return TRUE;
    }
    const platform::WKOpenPanelParameters parameters{
        .allowsMultipleSelection =
            webkit_file_chooser_request_get_select_multiple(request) != FALSE,
    };
    const std::shared_ptr<WebKitFileChooserRequest> kept(retain(request));
    delegate->runOpenPanel(
        self->owner_, parameters, [kept](const auto& files) { give(kept.get(), files); });
    return TRUE;
}

} // namespace gtk
