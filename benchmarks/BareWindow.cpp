// The least that shows a page with this engine: one window, one web view. What it takes to launch
// is what the application cannot do without.

#include <cstdlib>
#include <filesystem>
#include <string>
#include <webkit/webkit.h>

namespace {

bool hasGraphicsProcessor()
{
    std::error_code error;
    return std::filesystem::exists("/dev/dri/renderD128", error);
}

// As in the application: without a graphics processor, OpenGL costs time and gains nothing.
void drawWithoutOpenGL()
{
    constexpr int keep = 0;
    setenv("GSK_RENDERER", "cairo", keep);
    setenv("GDK_DEBUG", "gl-disable", keep);
    setenv("WEBKIT_DISABLE_DMABUF_RENDERER", "1", keep);
}

// Keeps cookies and caches from launch to launch, and trusts the certificate for the page's host.
WebKitNetworkSession* networkSession(const char* address, const char* certificateFile)
{
    const std::string folder = std::string(std::getenv("HOME")) + "/bare-window";
    auto* session = webkit_network_session_new(folder.c_str(), (folder + "/cache").c_str());
    webkit_cookie_manager_set_persistent_storage(webkit_network_session_get_cookie_manager(session),
        (folder + "/cookies").c_str(), WEBKIT_COOKIE_PERSISTENT_STORAGE_SQLITE);

    GUri* parts = g_uri_parse(address, G_URI_FLAGS_NONE, nullptr);
    GTlsCertificate* certificate = g_tls_certificate_new_from_file(certificateFile, nullptr);
    webkit_network_session_allow_tls_certificate_for_host(
        session, certificate, g_uri_get_host(parts));
    g_object_unref(certificate);
    g_uri_unref(parts);
    return session;
}

gboolean endLoop(void* loop)
{
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return TRUE;
}

} // namespace

// Arguments: the address, the certificate's file, and the width and height of the page.
int main(int argumentCount, char** arguments)
{
    if (argumentCount != 5)
        return 2;
    if (!hasGraphicsProcessor())
        drawWithoutOpenGL();
    gtk_init();
    GtkWidget* view = GTK_WIDGET(g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session",
        networkSession(arguments[1], arguments[2]), nullptr));
    if (!hasGraphicsProcessor()) {
        webkit_settings_set_hardware_acceleration_policy(
            webkit_web_view_get_settings(WEBKIT_WEB_VIEW(view)),
            WEBKIT_HARDWARE_ACCELERATION_POLICY_NEVER);
    }
    webkit_web_view_load_uri(WEBKIT_WEB_VIEW(view), arguments[1]);

    GtkWidget* window = gtk_window_new();
    gtk_window_set_default_size(
        GTK_WINDOW(window), std::atoi(arguments[3]), std::atoi(arguments[4]));
    gtk_window_set_child(GTK_WINDOW(window), view);
    gtk_window_present(GTK_WINDOW(window));

    GMainLoop* loop = g_main_loop_new(nullptr, FALSE);
    g_signal_connect_swapped(window, "close-request", G_CALLBACK(endLoop), loop);
    g_main_loop_run(loop);
    return 0;
}
