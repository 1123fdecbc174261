#pragma once

#include "platform/foundation/JSONSerialization.h"

#include <gtest/gtest.h>
#include <jsc/jsc.h>
#include <string>

namespace platform {

inline void PrintTo(const Value& value, std::ostream* stream)
{
    *stream << JSONSerialization::encode(value).value_or("no JSON");
}

} // namespace platform

// A real script engine with a page of a test's own in it.
class ScriptEngine {
public:
    // `page` is run first: it defines what the page is to have.
    explicit ScriptEngine(const std::string& page)
        : context_(jsc_context_new())
    {
        evaluate("var window = globalThis;");
        evaluate(page);
        EXPECT_EQ(exception_, "") << page;
    }
    ~ScriptEngine() { g_object_unref(context_); }

    ScriptEngine(const ScriptEngine&) = delete;
    ScriptEngine& operator=(const ScriptEngine&) = delete;

    // Runs `script` to its end. A script that cannot be read at all runs nothing.
    void evaluate(const std::string& script)
    {
        g_object_unref(
            jsc_context_evaluate(context_, script.data(), static_cast<gssize>(script.size())));
        auto* exception = jsc_context_get_exception(context_);
        exception_ = exception ? jsc_exception_get_name(exception) : "";
        jsc_context_clear_exception(context_);
    }

    // The name of the error that the last script ended with, such as "SyntaxError"; empty when it
    // ran through.
    const std::string& exception() const { return exception_; }

    // The value of an expression; null for what JSON cannot hold.
    platform::Value value(const std::string& expression)
    {
        auto* result = jsc_context_evaluate(
            context_, expression.data(), static_cast<gssize>(expression.size()));
        auto* json = jsc_value_to_json(result, 0);
        const auto value = json ? platform::JSONSerialization::decode(json) : std::nullopt;
        g_free(json);
        g_object_unref(result);
        return value.value_or(platform::Value());
    }

private:
    JSCContext* context_;
    std::string exception_;
};
