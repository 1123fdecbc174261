#include "platform/gtk/webkit/PageRefusals.h"

namespace gtk {

namespace {

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

} // namespace

void refusePageRequests(WebKitWebView* view)
{
    g_signal_connect(view, "script-dialog", G_CALLBACK(answerDialog), nullptr);
    g_signal_connect(view, "permission-request", G_CALLBACK(denyPermission), nullptr);
    g_signal_connect(view, "authenticate", G_CALLBACK(goOnWithoutPassword), nullptr);
    g_signal_connect(view, "print", G_CALLBACK(printNothing), nullptr);
}

} // namespace gtk
