#include "web/UserIdentity.h"

#include "platform/foundation/JSONSerialization.h"
#include "platform/foundation/Unicode.h"

namespace velmaro {

using platform::Data;
using platform::Value;

namespace {

namespace CodingKeys {
constexpr auto firstname = "firstname";
constexpr auto lastname = "lastname";
}

const std::string* stringMember(const Value& object, const char* name)
{
    const auto* member = object.member(name);
    return member ? member->string() : nullptr;
}

} // namespace

std::optional<UserIdentity> UserIdentity::decoded(const Data& data)
{
    const std::string_view text(reinterpret_cast<const char*>(data.data()), data.size());
    const auto value = platform::JSONSerialization::decode(text);
    if (!value)
        return std::nullopt;

    const auto* firstname = stringMember(*value, CodingKeys::firstname);
    const auto* lastname = stringMember(*value, CodingKeys::lastname);
    if (!firstname || !lastname)
        return std::nullopt;
    return UserIdentity{*firstname, *lastname};
}

std::optional<Data> UserIdentity::encoded() const
{
    const auto text = platform::JSONSerialization::encode(
        Value::Object{{CodingKeys::firstname, firstname}, {CodingKeys::lastname, lastname}});
    if (!text)
        return std::nullopt;
    const auto* bytes = reinterpret_cast<const std::byte*>(text->data());
    return Data(bytes, bytes + text->size());
}

bool UserIdentity::operator==(const UserIdentity& other) const
{
    return platform::isCanonicallyEquivalent(firstname, other.firstname)
        && platform::isCanonicallyEquivalent(lastname, other.lastname);
}

} // namespace velmaro
