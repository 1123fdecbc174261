#include "platform/gtk/webkit/ScriptValue.h"

#include "platform/gtk/foundation/ObjectPointer.h"

#include <algorithm>
#include <vector>

namespace gtk {

namespace {

using platform::Value;

constexpr std::size_t mostLevels = 512;
constexpr std::size_t mostValues = 100'000;

std::string textFrom(JSCValue* value)
{
    // A text with half a surrogate pair has no UTF-8 form; it would end there.
    const ObjectPointer<JSCValue> wellFormed(
        jsc_value_object_invoke_method(value, "toWellFormed", G_TYPE_NONE));
    g_autoptr(GBytes) bytes = jsc_value_to_string_as_bytes(wellFormed.get());
    gsize size = 0;
    const auto* data = static_cast<const char*>(g_bytes_get_data(bytes, &size));
    return size ? std::string(data, size) : std::string();
}

class Reader {
public:
    Value read(JSCValue* value)
    {
        if (jsc_value_is_string(value))
            return textFrom(value);
        if (jsc_value_is_number(value))
            return jsc_value_to_double(value);
        if (jsc_value_is_boolean(value))
            return jsc_value_to_boolean(value) != FALSE;
        if (!jsc_value_is_object(value) || isBeyondReach(value))
            return nullptr;

        path_.push_back(value);
        Value result = jsc_value_is_array(value) ? Value(elements(value)) : Value(members(value));
        path_.pop_back();
        return result;
    }

private:
    // The engine hands out the same wrapper for the same object while it is in use, as those on the
    // path are.
    bool isBeyondReach(JSCValue* value) const
    {
        return path_.size() == mostLevels
            || std::find(path_.begin(), path_.end(), value) != path_.end();
    }

    Value::Array elements(JSCValue* array)
    {
        const ObjectPointer<JSCValue> length(jsc_value_object_get_property(array, "length"));
        const double count = jsc_value_to_double(length.get());

        Value::Array elements;
        for (guint index = 0; index < count && takeOne(); ++index) {
            const ObjectPointer<JSCValue> element(
                jsc_value_object_get_property_at_index(array, index));
            elements.push_back(read(element.get()));
        }
        return elements;
    }

    // Members that are not objects come first, so that a large member displaces none of them. The
    // members of the message itself are all read.
    Value::Object members(JSCValue* object)
    {
        const bool isMessage = path_.size() == 1;
        g_auto(GStrv) names = jsc_value_object_enumerate_properties(object);

        Value::Object members;
        std::vector<std::pair<const char*, ObjectPointer<JSCValue>>> objects;
        for (auto name = names; name && *name && (isMessage || takeOne()); ++name) {
            ObjectPointer<JSCValue> member(jsc_value_object_get_property(object, *name));
            if (jsc_value_is_object(member.get()))
                objects.emplace_back(*name, std::move(member));
            else
                members.emplace(*name, read(member.get()));
        }
        for (const auto& [name, member] : objects)
            members.emplace(name, read(member.get()));
        return members;
    }

    bool takeOne()
    {
        if (left_ == 0)
            return false;
        --left_;
        return true;
    }

    std::vector<JSCValue*> path_; // the objects around the one being read
    std::size_t left_ = mostValues;
};

} // namespace

Value valueFromScript(JSCValue* value)
{
    return Reader().read(value);
}

} // namespace gtk
