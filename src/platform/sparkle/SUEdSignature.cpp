#include "platform/sparkle/SUEdSignature.h"

#include <array>
#include <optional>
#include <sodium.h>

namespace platform {

namespace {

template <std::size_t size>
std::optional<std::array<unsigned char, size>> decoded(std::string_view base64)
{
    std::array<unsigned char, size> bytes;
    std::size_t length = 0;
    const char* end = nullptr;
    const bool isDecoded = sodium_base642bin(bytes.data(), size, base64.data(), base64.size(),
                               nullptr, &length, &end, sodium_base64_VARIANT_ORIGINAL)
        == 0;
    if (!isDecoded || length != size || end != base64.data() + base64.size())
        return std::nullopt;
    return bytes;
}

} // namespace

bool isEdPublicKey(std::string_view text)
{
    return decoded<crypto_sign_PUBLICKEYBYTES>(text).has_value();
}

bool isSigned(
    std::span<const std::byte> data, std::string_view signature, std::string_view publicKey)
{
    const auto signatureBytes = decoded<crypto_sign_BYTES>(signature);
    const auto key = decoded<crypto_sign_PUBLICKEYBYTES>(publicKey);
    return signatureBytes && key
        && crypto_sign_verify_detached(signatureBytes->data(),
               reinterpret_cast<const unsigned char*>(data.data()), data.size(), key->data())
        == 0;
}

} // namespace platform
