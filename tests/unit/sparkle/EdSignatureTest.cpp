#include "platform/sparkle/SUEdSignature.h"

#include <gtest/gtest.h>
#include <string>

TEST(EdSignature, holdsForTheSignedBytesAndTheSignersKeyOnly)
{
    // From RFC 8032, 7.1.
    const std::string key = "PUAXw+hDiVqStwqnTRt+vJyYLM8uxJaMwM1V8Sr0Zgw=";
    const std::string signature = "kqAJqfDUyrhyDoILX2QlQKKye1QWUD+Ps3YiI+vbadoI"
                                  "WsHkPhWZbkWPNhPQ8R2MOHsurrQwKu6wDSkWErsMAA==";
    const std::string otherKey = "11qYAYKxCrfVS/7TyWQHOg7hcvPapiMlrwIaaPcHURo=";
    struct Case {
        std::string text;
        std::string signature;
        std::string key;
        bool isSigned;
    };
    const Case cases[] = {
        {"r", signature, key, true},
        {"s", signature, key, false},
        {"r", signature, otherKey, false},
        {"r", "A" + signature.substr(1), key, false},
        {"r", signature + "AAAA", key, false},
        {"r", "not Base64!", key, false},
        {"r", "", key, false},
        {"r", signature, "", false},
    };
    for (const auto& [text, signature, key, isSigned] : cases) {
        const auto bytes = std::as_bytes(std::span(text));
        EXPECT_EQ(platform::isSigned(bytes, signature, key), isSigned) << text << ' ' << signature;
    }
    EXPECT_TRUE(platform::isEdPublicKey(key));
    EXPECT_FALSE(platform::isEdPublicKey(key + "\n"));
}
