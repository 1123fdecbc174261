#include "platform/gtk/webkit/PageManners.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gtk {

namespace {

// The engine loads what has one of these schemes; for any other it would show an error page.
constexpr std::array<std::string_view, 5> loadableSchemes = {
    "https", "http", "about", "data", "blob"};

gboolean printNothing(WebKitWebView*)
{
    return TRUE;
}

// Untouched, an alert returns, a confirmation is false and a prompt is null.
gboolean answerDialog(WebKitWebView*, WebKitScriptDialog* dialog)
{
    if (webkit_script_dialog_get_dialog_type(dialog) == WEBKIT_SCRIPT_DIALOG_BEFORE_UNLOAD_CONFIRM)
        webkit_script_dialog_confirm_set_confirmed(dialog, TRUE);
    return TRUE;
}

gboolean denyPermission(WebKitWebView*, WebKitPermissionRequest* request)
{
    webkit_permission_request_deny(request);
    return TRUE;
}

// The page then shows what the server has to say without a password. A proxy's question is one
// between the user and the network, and stays.
gboolean goOnWithoutPassword(WebKitWebView*, WebKitAuthenticationRequest* request)
{
    if (webkit_authentication_request_is_for_proxy(request))
        return FALSE;
    webkit_authentication_request_authenticate(request, nullptr);
    return TRUE;
}

gboolean decide(WebKitWebView*, WebKitPolicyDecision* decision, WebKitPolicyDecisionType type)
{
    if (type == WEBKIT_POLICY_DECISION_TYPE_RESPONSE)
        return FALSE;
    auto* action = webkit_navigation_policy_decision_get_navigation_action(
        WEBKIT_NAVIGATION_POLICY_DECISION(decision));
    auto* request = webkit_navigation_action_get_request(action);
    g_autofree char* scheme = g_uri_parse_scheme(webkit_uri_request_get_uri(request));
    g_autofree char* lower = scheme ? g_ascii_strdown(scheme, -1) : nullptr;
    if (lower && std::ranges::find(loadableSchemes, lower) != loadableSchemes.end())
        return FALSE;
    webkit_policy_decision_ignore(decision);
    return TRUE;
}

GtkWidget* makeNoWindow(WebKitWebView*)
{
    return nullptr;
}

} // namespace

void teachManners(WebKitWebView* view)
{
    g_signal_connect(view, "script-dialog", G_CALLBACK(answerDialog), nullptr);
    g_signal_connect(view, "permission-request", G_CALLBACK(denyPermission), nullptr);
    g_signal_connect(view, "authenticate", G_CALLBACK(goOnWithoutPassword), nullptr);
    g_signal_connect(view, "print", G_CALLBACK(printNothing), nullptr);
    g_signal_connect(view, "decide-policy", G_CALLBACK(decide), nullptr);
    g_signal_connect(view, "create", G_CALLBACK(makeNoWindow), nullptr);
}

} // namespace gtk
