#pragma once

#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace platform {

// A value as JSON and page scripts have them: null, a Boolean, a number, a UTF-8 text, a list or an
// object. Any thread may use it, and copies share nothing.
class Value {
public:
    using Array = std::vector<Value>;
    using Object = std::map<std::string, Value>;

    Value() = default; // null
    Value(std::nullptr_t) { }
    Value(bool boolean)
        : content_(boolean)
    {
    }
    Value(double number)
        : content_(number)
    {
    }
    Value(int number)
        : content_(static_cast<double>(number))
    {
    }
    Value(std::string text)
        : content_(std::move(text))
    {
    }
    Value(const char* text)
        : content_(std::string(text))
    {
    }
    Value(Array array)
        : content_(std::move(array))
    {
    }
    Value(Object object)
        : content_(std::move(object))
    {
    }

    // The content when it is of that kind, else null. The pointer lives as long as the value.
    const bool* boolean() const { return std::get_if<bool>(&content_); }
    const double* number() const { return std::get_if<double>(&content_); }
    const std::string* string() const { return std::get_if<std::string>(&content_); }
    const Array* array() const { return std::get_if<Array>(&content_); }
    const Object* object() const { return std::get_if<Object>(&content_); }

    // A member of an object; null when this is no object or has no such member.
    const Value* member(const std::string& name) const
    {
        const auto* members = object();
        if (!members)
            return nullptr;
        const auto found = members->find(name);
        return found == members->end() ? nullptr : &found->second;
    }

    bool operator==(const Value&) const = default;

private:
    std::variant<std::monostate, bool, double, std::string, Array, Object> content_;
};

} // namespace platform
