#include "platform/gtk/webkit/PageRecovery.h"

#include "platform/gtk/webkit/EngineView.h"

#include <string_view>
#include <utility>

namespace gtk {

namespace {

std::string withoutFragment(std::string_view address)
{
    return std::string(address.substr(0, address.find('#')));
}

// The address of the page that the view shows or has shown last; empty before the first one.
std::string currentAddress(WebKitWebView* view)
{
    auto* item =
        webkit_back_forward_list_get_current_item(webkit_web_view_get_back_forward_list(view));
    return item ? webkit_back_forward_list_item_get_uri(item) : "";
}

} // namespace

PageRecovery::PageRecovery(WebKitWebView* view, Gtk::Overlay& area,
    std::shared_ptr<const HostTrust> trust, const PageTimeouts& patience, Callbacks callbacks)
    : view_(view)
    , area_(area)
    , trust_(std::move(trust))
    , patience_(patience)
    , callbacks_(std::move(callbacks))
    , retries_(patience, [this] { tryAgain(); })
{
    signals_.connect(view, "load-changed", G_CALLBACK(&PageRecovery::loadChanged), this);
    signals_.connect(view, "load-failed", G_CALLBACK(&PageRecovery::loadFailed), this);
    signals_.connect(
        view, "load-failed-with-tls-errors", G_CALLBACK(&PageRecovery::certificateFailed), this);
    signals_.connect(view, "web-process-terminated", G_CALLBACK(&PageRecovery::processDied), this);
}

void PageRecovery::load(const platform::URLRequest& request)
{
    request_ = request;
    send(request.url.absoluteString(), request.timeoutInterval, request.cachePolicy);
}

bool PageRecovery::hasPageForScript()
{
    if (failure_) {
        panel_->showAttempt();
        tryAgain();
        return false;
    }
    if (revivesWhenShown_)
        revive();
    return hasPage_;
}

void PageRecovery::uncover()
{
    request_.reset();
    removePanel();
    webkit_web_view_stop_loading(view_);
    setReady(true);
}

void PageRecovery::setShown(bool isShown)
{
    isShown_ = isShown;
    retries_.setWatched(isShown);
    if (!isShown)
        return;
    if (revivesWhenShown_)
        revive();
    else if (failure_ && failure_->mayPass() && !webkit_web_view_is_loading(view_))
        tryAgain();
}

void PageRecovery::loadChanged(WebKitWebView*, WebKitLoadEvent event, PageRecovery* self)
{
    switch (event) {
    case WEBKIT_LOAD_STARTED:
        self->revivesWhenShown_ = false;
        self->isOutOfTime_ = false;
        if (!self->answerTimer_.isRunning())
            self->awaitAnswer(self->patience_.answer);
        break;
    case WEBKIT_LOAD_REDIRECTED:
        break;
    case WEBKIT_LOAD_COMMITTED:
        self->commit();
        break;
    case WEBKIT_LOAD_FINISHED:
        self->answerTimer_.stop();
        self->setReady(self->hasPage_ && !self->failure_);
        break;
    }
}

gboolean PageRecovery::loadFailed(
    WebKitWebView*, WebKitLoadEvent event, char* address, GError* error, PageRecovery* self)
{
    self->answerTimer_.stop();
    auto reason = failureReason(*error, address);
    const bool hasNothingToShow = !self->hasPage_ || self->failure_;
    if (std::exchange(self->isOutOfTime_, false))
        reason = LoadFailure::Reason::timeout;
    else if (!reason && error->domain == WEBKIT_POLICY_ERROR && hasNothingToShow)
        reason = LoadFailure::Reason::noPage;
    if (!reason) {
        // The load leads nowhere, so it must not be tried again when another one fails. The load
        // that it was given up for may already have been asked for.
        if (error->domain == WEBKIT_POLICY_ERROR || self->isAskedFor(address))
            self->request_.reset();
        return TRUE;
    }

    if (event == WEBKIT_LOAD_COMMITTED)
        self->hasPage_ = false; // a page that was cut off does not count as loaded
    self->fail(*reason, address);
    return TRUE;
}

gboolean PageRecovery::certificateFailed(WebKitWebView* view, char* address,
    GTlsCertificate* certificate, GTlsCertificateFlags, PageRecovery* self)
{
    self->answerTimer_.stop();
    const bool isTrusted = !self->hasExtendedTrust_
        && self->trust_->accept(webkit_web_view_get_network_session(view), certificate, address);
    if (isTrusted) {
        self->hasExtendedTrust_ = true;
        self->loadAgain(address);
    } else {
        self->fail(LoadFailure::Reason::certificate, address);
    }
    return TRUE;
}

void PageRecovery::processDied(
    WebKitWebView*, WebKitWebProcessTerminationReason, PageRecovery* self)
{
    self->replaceProcess();
}

bool PageRecovery::isAskedFor(const std::string& address) const
{
    return request_ && request_->url.absoluteString() == address;
}

void PageRecovery::send(
    const std::string& address, double secondsToAnswer, platform::URLRequest::CachePolicy policy)
{
    revivesWhenShown_ = false;
    awaitAnswer(secondsToAnswer);
    loadAddress(view_, address, policy);
}

void PageRecovery::awaitAnswer(double seconds)
{
    answerTimer_.start(seconds, [this] { giveUp(); });
}

void PageRecovery::giveUp()
{
    if (request_)
        fail(LoadFailure::Reason::timeout, request_->url.absoluteString());
    else
        isOutOfTime_ = true; // the address comes with the end of the load
    webkit_web_view_stop_loading(view_);
    if (!webkit_web_view_get_is_web_process_responsive(view_))
        webkit_web_view_terminate_web_process(view_);
}

void PageRecovery::commit()
{
    answerTimer_.stop();
    request_.reset();
    hasExtendedTrust_ = false;
    hasPage_ = true;
    removePanel();
}

void PageRecovery::fail(LoadFailure::Reason reason, const std::string& address)
{
    failure_ = LoadFailure{reason, address};
    setReady(false);
    if (!panel_) {
        panel_ = std::make_unique<FailurePanel>();
        panel_->signalTryAgain().connect([this] {
            panel_->showAttempt();
            tryAgain();
        });
        area_.add_overlay(*panel_);
        if (gtk_widget_has_focus(GTK_WIDGET(view_)))
            panel_->takeFocus();
    }
    panel_->show(*failure_);
    if (failure_->mayPass())
        retries_.failed();
    else
        retries_.stop();
    callbacks_.coverChanged();
}

void PageRecovery::tryAgain()
{
    if (!failure_)
        return;
    retries_.attempted();
    loadAgain(failure_->address);
}

void PageRecovery::loadAgain(const std::string& address)
{
    if (request_)
        load(platform::URLRequest(*request_));
    else if (withoutFragment(address) == withoutFragment(currentAddress(view_)))
        webkit_web_view_reload(view_);
    else
        send(address, patience_.answer);
}

void PageRecovery::revive()
{
    revivesWhenShown_ = false;
    loadAgain(currentAddress(view_));
}

void PageRecovery::replaceProcess()
{
    const auto now = g_get_monotonic_time();
    const bool isSecondDeath = lastDeath_
        && static_cast<double>(now - *lastDeath_) < patience_.secondDeath * G_USEC_PER_SEC;
    lastDeath_ = now;

    answerTimer_.stop();
    hasPage_ = false;
    setReady(false);
    if (isSecondDeath)
        fail(LoadFailure::Reason::processDied,
            request_ ? request_->url.absoluteString() : currentAddress(view_));
    else if (failure_)
        retries_.failed();
    else if (isShown_)
        revive();
    else
        revivesWhenShown_ = true;
}

void PageRecovery::removePanel()
{
    if (!failure_)
        return;
    retries_.stop();
    failure_.reset();
    if (panel_->hasFocus())
        gtk_widget_grab_focus(GTK_WIDGET(view_));
    area_.remove_overlay(*panel_);
    panel_.reset();
    callbacks_.coverChanged();
}

void PageRecovery::setReady(bool isReady)
{
    if (isReady_ == isReady)
        return;
    isReady_ = isReady;
    callbacks_.readinessChanged();
}

} // namespace gtk
