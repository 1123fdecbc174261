#include "platform/gtk/webkit/GtkUserContentController.h"

#include "platform/gtk/webkit/ScriptValue.h"

namespace gtk {

namespace {

// The selected match is as bright while the keyboard is in the find field as while it is in the
// page. Pages may override this.
constexpr auto selectionStyle = "::selection { background-color: Highlight; color: HighlightText }";

} // namespace

GtkUserContentController::GtkUserContentController(
    const platform::WKUserContentController& controller, std::function<bool()> acceptsMessages)
    : manager_(webkit_user_content_manager_new())
    , acceptsMessages_(std::move(acceptsMessages))
{
    addStyle(selectionStyle);
    for (const auto& script : controller.userScripts)
        addScript(script);
    for (const auto& receiver : controller.scriptMessageHandlers)
        addBridge(receiver);
}

void GtkUserContentController::addStyle(const char* source)
{
    auto* style = webkit_user_style_sheet_new(source, WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
        WEBKIT_USER_STYLE_LEVEL_USER, nullptr, nullptr);
    webkit_user_content_manager_add_style_sheet(manager_.get(), style);
    webkit_user_style_sheet_unref(style);
}

void GtkUserContentController::addScript(const platform::WKUserScript& script)
{
    using InjectionTime = platform::WKUserScript::InjectionTime;

    auto* userScript = webkit_user_script_new(script.source.c_str(),
        script.forMainFrameOnly ? WEBKIT_USER_CONTENT_INJECT_TOP_FRAME
                                : WEBKIT_USER_CONTENT_INJECT_ALL_FRAMES,
        script.injectionTime == InjectionTime::atDocumentStart
            ? WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_START
            : WEBKIT_USER_SCRIPT_INJECT_AT_DOCUMENT_END,
        nullptr, nullptr);
    webkit_user_content_manager_add_script(manager_.get(), userScript);
    webkit_user_script_unref(userScript);
}

void GtkUserContentController::addBridge(
    const platform::WKUserContentController::MessageHandler& receiver)
{
    bridges_.push_back(std::make_unique<Bridge>(Bridge{*this, receiver}));
    const auto signal = "script-message-received::" + receiver.name;
    signals_.connect(manager_.get(), signal.c_str(), G_CALLBACK(&GtkUserContentController::receive),
        bridges_.back().get());
    webkit_user_content_manager_register_script_message_handler(
        manager_.get(), receiver.name.c_str(), nullptr);
}

void GtkUserContentController::receive(WebKitUserContentManager*, JSCValue* body, Bridge* bridge)
{
    const auto handler = bridge->receiver.handler.lock();
    if (!handler || !bridge->owner.acceptsMessages_())
        return;
    // The handler may destroy the web view, and with it the bridge.
    handler->userContentControllerDidReceiveScriptMessage(
        {bridge->receiver.name, valueFromScript(body)});
}

} // namespace gtk
