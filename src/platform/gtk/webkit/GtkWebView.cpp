#include "platform/gtk/webkit/GtkWebView.h"

#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/ui/ThemeColor.h"
#include "platform/gtk/webkit/VisiblePage.h"
#include "platform/gtk/webkit/WebEngine.h"

#include <gtkmm/settings.h>

namespace gtk {

namespace {

bool isPersistent(const platform::WKWebViewConfiguration& configuration)
{
    return configuration.websiteDataStore == platform::WKWebsiteDataStore::defaultDataStore;
}

// The view whose content process a new one joins; null when it starts one of its own.
WebKitWebView* companion(
    const WebEngine& engine, const platform::WKWebViewConfiguration& configuration)
{
    if (!isPersistent(configuration))
        return nullptr;
    return engine.spareView() ? engine.spareView() : engine.sharing()->companion();
}

// The engine keeps a text view inside its own, to learn what keys mean there. To the toolkit it is
// one more stop for the keyboard focus, and one that Tab does not lead out of.
void keepFocusOutOfHelpers(WebKitWebView* view)
{
    for (auto* child = gtk_widget_get_first_child(GTK_WIDGET(view)); child;
         child = gtk_widget_get_next_sibling(child))
        gtk_widget_set_can_focus(child, FALSE);
}

// Calls `act` for the engine's recogniser of pinches, which has no switch of its own.
template <class Act> void withPinchGesture(WebKitWebView* view, Act act)
{
    const ObjectPointer<GListModel> controllers(gtk_widget_observe_controllers(GTK_WIDGET(view)));
    for (guint index = 0; index < g_list_model_get_n_items(controllers.get()); ++index) {
        const ObjectPointer<GObject> controller(
            G_OBJECT(g_list_model_get_item(controllers.get(), index)));
        if (GTK_IS_GESTURE_ZOOM(controller.get()))
            act(GTK_EVENT_CONTROLLER(controller.get()));
    }
}

} // namespace

GtkWebView::GtkWebView(WebEngine& engine, const platform::WKWebViewConfiguration& configuration)
    : EngineView(engine, configuration, companion(engine, configuration))
    , visiblePage_(engine.visiblePage())
    , sharing_(isPersistent(configuration) ? engine.sharing() : nullptr)
    , spare_(sharing_ ? engine.takeSpareView() : nullptr)
    , recovery_(native(), area_, engine.trust(), engine.patience(),
          {
              [this] {
                  tellTitle();
                  changed({Property::title, Property::canGoBack, Property::canGoForward});
              },
              [this] { visiblePage_->readinessChanged(this, recovery_.isReady()); },
          })
    , requests_(*this)
    , downloads_(*this)
    , drop_(*this)
{
    if (sharing_)
        sharing_->add(native(), spare_ ? nullptr : sharing_->companion());
    gtk_overlay_set_child(area_.gobj(), GTK_WIDGET(native()));
    keepFocusOutOfHelpers(native());
    watch();
}

GtkWebView::~GtkWebView()
{
    if (sharing_)
        sharing_->remove(native());
    visiblePage_->hidden(this);
    if (area_.get_parent())
        area_.unparent();
    area_.unset_child();
}

void GtkWebView::watch()
{
    const auto connect = [this](gpointer object, const char* signal, auto handler) {
        signals_.connect(object, signal, G_CALLBACK(+handler), this);
    };
    connect(native(), "map", [](GtkWidget*, GtkWebView* self) { self->takeFocus(); });
    connect(native(), "notify::title",
        [](GObject*, GParamSpec*, GtkWebView* self) { self->tellTitle(); });
    connect(native(), "notify::is-loading", [](GObject*, GParamSpec*, GtkWebView* self) {
        self->spare_.reset(); // its process has gone over to this view
    });
    connect(native(), "web-process-terminated",
        [](WebKitWebView* view, WebKitWebProcessTerminationReason, GtkWebView* self) {
            if (self->sharing_)
                self->sharing_->processDied(view);
        });
    for (const auto* change :
        {"notify::gtk-theme-name", "notify::gtk-application-prefer-dark-theme"})
        connect(gtk_settings_get_default(), change,
            [](GObject*, GParamSpec*, GtkWebView* self) { self->paintBackground(); });
}

void GtkWebView::tellTitle()
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(native()), GTK_ACCESSIBLE_PROPERTY_LABEL, title().c_str(), -1);
}

platform::NSWindow* GtkWebView::window() const
{
    return platformWindow(area_);
}

void GtkWebView::setShown(bool isShown)
{
    if (isShown)
        visiblePage_->shown(this, native(), recovery_.isReady());
    else
        visiblePage_->hidden(this);
    recovery_.setShown(isShown);
    takeFocus();
}

// Selecting a tab focuses its page once it is mapped.
void GtkWebView::takeFocus()
{
    if (visiblePage_->page() == native() && area_.get_mapped() && isReachable(area_))
        gtk_widget_grab_focus(GTK_WIDGET(native()));
}

void GtkWebView::evaluateJavaScript(const std::string& script)
{
    if (recovery_.hasPageForScript())
        EngineView::evaluateJavaScript(script);
}

void GtkWebView::goBack()
{
    if (recovery_.hasPageUnderPanel())
        recovery_.uncover();
    else
        EngineView::goBack();
}

bool GtkWebView::canGoBack() const
{
    return recovery_.hasPageUnderPanel() || EngineView::canGoBack();
}

std::string GtkWebView::title() const
{
    if (const auto* failure = recovery_.failure())
        return failure->title();
    return EngineView::title();
}

void GtkWebView::setPageZoom(double factor)
{
    webkit_web_view_set_zoom_level(native(), factor);
}

void GtkWebView::setAllowsBackForwardNavigationGestures(bool isAllowed)
{
    webkit_settings_set_enable_back_forward_navigation_gestures(
        webkit_web_view_get_settings(native()), isAllowed);
}

void GtkWebView::setAllowsMagnification(bool isAllowed)
{
    withPinchGesture(native(), [isAllowed](GtkEventController* gesture) {
        gtk_event_controller_set_propagation_phase(
            gesture, isAllowed ? GTK_PHASE_TARGET : GTK_PHASE_NONE);
    });
}

void GtkWebView::setUsesOverlayScrollers(bool isOverlay)
{
    // One setting for the whole program: the engine follows it, and has no other for one view.
    const auto setting = Gtk::Settings::get_default()->property_gtk_overlay_scrolling();
    if (setting.get_value() != isOverlay)
        Gtk::Settings::get_default()->property_gtk_overlay_scrolling() = isOverlay;
}

void GtkWebView::setDrawsBackground(bool isDrawn)
{
    drawsBackground_ = isDrawn;
    paintBackground();
}

// The page lies on white, or on the colour of the window, whatever theme the desktop has. A
// transparent background would look like the window's colour too; but when the engine draws in
// software, it draws changes over what was there before, and both would show.
void GtkWebView::paintBackground()
{
    const auto color =
        drawsBackground_ ? Gdk::RGBA("white") : themeColor(area_, ui::Color::windowBackground);
    webkit_web_view_set_background_color(native(), color.gobj());
}

} // namespace gtk
