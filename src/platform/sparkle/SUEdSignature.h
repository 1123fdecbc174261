#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace platform {

// Whether a text is a public key of Ed25519: 32 bytes in Base64.
bool isEdPublicKey(std::string_view text);

// Whether `signature` is an Ed25519 signature of `data` by the owner of `publicKey`, both in
// Base64. A text that is no signature, or no key, signs nothing. Any thread.
bool isSigned(
    std::span<const std::byte> data, std::string_view signature, std::string_view publicKey);

} // namespace platform
