#include "platform/gtk/webkit/GtkWebView.h"

#include "platform/gtk/ui/NativeWindow.h"
#include "platform/gtk/webkit/EngineRequest.h"
#include "platform/gtk/webkit/PageRefusals.h"
#include "platform/gtk/webkit/VisiblePage.h"
#include "platform/gtk/webkit/WebEngine.h"

#include <gtkmm/settings.h>

namespace gtk {

namespace {

bool isPersistent(const platform::WKWebViewConfiguration& configuration)
{
    return configuration.websiteDataStore == platform::WKWebsiteDataStore::defaultDataStore;
}

// A view in the content process of `companion`, or in one of its own where there is none.
ObjectPointer<WebKitWebView> makeView(WebEngine& engine,
    const platform::WKWebViewConfiguration& configuration, WebKitUserContentManager* content,
    WebKitWebView* companion)
{
    if (companion) {
        const auto settings = engine.makeSettings(configuration.preferences);
        auto* object = g_object_new(WEBKIT_TYPE_WEB_VIEW, "related-view", companion, "settings",
            settings.get(), "user-content-manager", content, nullptr);
        return retain(WEBKIT_WEB_VIEW(object));
    }
    const auto session = engine.session(configuration.websiteDataStore);
    const auto settings = engine.makeSettings(configuration.preferences);
    auto* object = g_object_new(WEBKIT_TYPE_WEB_VIEW, "network-session", session.get(), "settings",
        settings.get(), "user-content-manager", content, nullptr);
    return retain(WEBKIT_WEB_VIEW(object));
}

// The engine keeps a text view inside of its own, to learn what keys mean there. To the toolkit it
// is one more stop on the way of the focus, and one that no Tab leads out of.
void keepFocusOutOfHelpers(WebKitWebView* view)
{
    for (auto* child = gtk_widget_get_first_child(GTK_WIDGET(view)); child;
         child = gtk_widget_get_next_sibling(child))
        gtk_widget_set_can_focus(child, FALSE);
}

// Calls `act` for the engine's recogniser of pinches, for which it has no switch.
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
    : visiblePage_(engine.visiblePage())
    , content_(configuration.userContentController, [this] { return !keeper_.failure(); })
    , sharing_(isPersistent(configuration) ? engine.sharing() : nullptr)
    , spare_(sharing_ ? engine.takeSpareView() : nullptr)
    , view_(makeSharedView(engine, configuration))
    , keeper_(view_.get(), area_, engine.trust(), engine.patience(),
          {
              [this] {
                  titleChanged();
                  historyChanged();
              },
              [this] { visiblePage_->readinessChanged(this, keeper_.isReady()); },
          })
    , background_(view_.get(), area_)
    , search_(view_.get())
    , output_(view_.get(), engine.printChoice())
    , requests_(view_.get(), *this)
    , downloads_(view_.get(), *this)
    , drop_(view_.get(), *this)
{
    gtk_overlay_set_child(area_.gobj(), GTK_WIDGET(view_.get()));
    refusePageRequests(view_.get());
    keepFocusOutOfHelpers(view_.get());
    watch();
}

GtkWebView::~GtkWebView()
{
    if (sharing_)
        sharing_->remove(view_.get());
    visiblePage_->hidden(this);
    if (area_.get_parent())
        area_.unparent();
    area_.unset_child();
}

ObjectPointer<WebKitWebView> GtkWebView::makeSharedView(
    WebEngine& engine, const platform::WKWebViewConfiguration& configuration)
{
    if (!sharing_)
        return makeView(engine, configuration, content_.manager(), nullptr);
    auto* neighbour = spare_ ? nullptr : sharing_->companion();
    auto* companion = spare_ ? spare_.get() : neighbour;
    auto view = makeView(engine, configuration, content_.manager(), companion);
    sharing_->add(view.get(), neighbour);
    return view;
}

void GtkWebView::watch()
{
    const auto connect = [this](gpointer object, const char* signal, auto handler) {
        signals_.connect(object, signal, G_CALLBACK(+handler), this);
    };
    connect(view_.get(), "map", [](GtkWidget*, GtkWebView* self) { self->takeFocus(); });
    connect(view_.get(), "notify::title",
        [](GObject*, GParamSpec*, GtkWebView* self) { self->titleChanged(); });
    connect(view_.get(), "notify::is-loading", [](GObject*, GParamSpec*, GtkWebView* self) {
        self->spare_.reset(); // its process has gone over to this view
        self->changed(Property::isLoading);
    });
    connect(view_.get(), "notify::estimated-load-progress",
        [](GObject*, GParamSpec*, GtkWebView* self) {
            self->changed(Property::estimatedProgress);
        });
    connect(view_.get(), "web-process-terminated",
        [](WebKitWebView* view, WebKitWebProcessTerminationReason, GtkWebView* self) {
            if (self->sharing_)
                self->sharing_->processDied(view);
        });
    connect(webkit_web_view_get_back_forward_list(view_.get()), "changed",
        [](WebKitBackForwardList*, WebKitBackForwardListItem*, gpointer, GtkWebView* self) {
            self->historyChanged();
        });
}

void GtkWebView::titleChanged()
{
    gtk_accessible_update_property(
        GTK_ACCESSIBLE(view_.get()), GTK_ACCESSIBLE_PROPERTY_LABEL, title().c_str(), -1);
    changed(Property::title);
}

void GtkWebView::historyChanged()
{
    changed(Property::canGoBack);
    changed(Property::canGoForward);
}

platform::NSWindow* GtkWebView::window() const
{
    return platformWindow(area_);
}

void GtkWebView::setShown(bool isShown)
{
    if (isShown)
        visiblePage_->shown(this, view_.get(), keeper_.isReady());
    else
        visiblePage_->hidden(this);
    keeper_.setShown(isShown);
    takeFocus();
}

// Who comes to a tab wants its page, as soon as that has its place in the window.
void GtkWebView::takeFocus()
{
    if (visiblePage_->page() == view_.get() && area_.get_mapped() && isReachable(area_))
        gtk_widget_grab_focus(GTK_WIDGET(view_.get()));
}

void GtkWebView::loadHTMLString(
    const std::string& html, const std::optional<platform::URL>& baseURL)
{
    loadDocument(view_.get(), html, baseURL);
}

void GtkWebView::createPDF(const platform::WKPDFConfiguration&,
    std::function<void(const PageDocument::Result&)> completion)
{
    output_.createPDF(area_.get_width(), std::move(completion));
}

void GtkWebView::evaluateJavaScript(const std::string& script)
{
    if (!keeper_.hasPageForScript())
        return;
    webkit_web_view_evaluate_javascript(view_.get(), script.data(),
        static_cast<gssize>(script.size()), nullptr, nullptr, nullptr, nullptr, nullptr);
}

void GtkWebView::goBack()
{
    if (keeper_.hasPageUnderPanel())
        keeper_.uncover();
    else
        webkit_web_view_go_back(view_.get());
}

void GtkWebView::goForward()
{
    webkit_web_view_go_forward(view_.get());
}

bool GtkWebView::canGoBack() const
{
    return keeper_.hasPageUnderPanel() || webkit_web_view_can_go_back(view_.get());
}

bool GtkWebView::canGoForward() const
{
    return webkit_web_view_can_go_forward(view_.get());
}

bool GtkWebView::isLoading() const
{
    return webkit_web_view_is_loading(view_.get());
}

double GtkWebView::estimatedProgress() const
{
    return webkit_web_view_get_estimated_load_progress(view_.get());
}

std::string GtkWebView::title() const
{
    if (const auto* failure = keeper_.failure())
        return failure->title();
    const char* title = webkit_web_view_get_title(view_.get());
    return title ? title : "";
}

platform::WKWebView::Observation GtkWebView::observe(
    Property property, std::function<void()> handler)
{
    return observers_.add(property, std::move(handler));
}

void GtkWebView::setPageZoom(double factor)
{
    webkit_web_view_set_zoom_level(view_.get(), factor);
}

void GtkWebView::setCustomUserAgent(const std::string& userAgent)
{
    webkit_settings_set_user_agent(webkit_web_view_get_settings(view_.get()), userAgent.c_str());
}

void GtkWebView::setAllowsBackForwardNavigationGestures(bool isAllowed)
{
    webkit_settings_set_enable_back_forward_navigation_gestures(
        webkit_web_view_get_settings(view_.get()), isAllowed);
}

void GtkWebView::setAllowsMagnification(bool isAllowed)
{
    withPinchGesture(view_.get(), [isAllowed](GtkEventController* gesture) {
        gtk_event_controller_set_propagation_phase(
            gesture, isAllowed ? GTK_PHASE_TARGET : GTK_PHASE_NONE);
    });
}

void GtkWebView::setUsesOverlayScrollers(bool isOverlay)
{
    // One setting for the whole program: the engine follows it, and has none for a single view.
    const auto setting = Gtk::Settings::get_default()->property_gtk_overlay_scrolling();
    if (setting.get_value() != isOverlay)
        Gtk::Settings::get_default()->property_gtk_overlay_scrolling() = isOverlay;
}

void GtkWebView::setDrawsBackground(bool isDrawn)
{
    background_.setWhite(isDrawn);
}

} // namespace gtk
