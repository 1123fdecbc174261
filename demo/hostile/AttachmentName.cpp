#include "hostile/AttachmentName.h"

namespace demo {

namespace {

#define FIFTY_LETTERS "abcdefghijklmnopqrstuvwxyabcdefghijklmnopqrstuvwxy"
#define TEN_UMLAUTS "%C3%A4%C3%B6%C3%BC%C3%A4%C3%B6%C3%BC%C3%A4%C3%B6%C3%BC%C3%A4"
#define FIFTY_UMLAUTS TEN_UMLAUTS TEN_UMLAUTS TEN_UMLAUTS TEN_UMLAUTS TEN_UMLAUTS

constexpr AttachmentName names[] = {
    {"parent", R"(; filename="..")"},
    {"parents", R"(; filename="../../../../tmp/velmaro_data.csv")"},
    {"encoded-parents", "; filename*=UTF-8''..%2F..%2Fvelmaro_data.csv"},
    {"absolute", R"(; filename="/etc/velmaro_data.csv")"},
    {"backslashes", R"(; filename="C:\\data\\velmaro_data.csv")"},
    {"trailing-slash", R"(; filename="velmaro_data.csv/")"},
    {"empty", R"(; filename="")"},
    {"absent", ""},
    {"blank", R"(; filename="   ")"},
    {"only-dots", R"(; filename=".....")"},
    {"hidden", R"(; filename=".velmaro_data.csv")"},
    {"trailing-dot", R"(; filename="velmaro_data.")"},
    {"long",
        "; filename=\"" FIFTY_LETTERS FIFTY_LETTERS FIFTY_LETTERS FIFTY_LETTERS FIFTY_LETTERS
            FIFTY_LETTERS FIFTY_LETTERS FIFTY_LETTERS ".csv\""},
    {"long-umlauts",
        "; filename*=UTF-8''" FIFTY_UMLAUTS FIFTY_UMLAUTS FIFTY_UMLAUTS FIFTY_UMLAUTS ".csv"},
    {"device", R"(; filename="CON")"},
    {"device-with-extension", R"(; filename="aux.csv")"},
    {"right-to-left", "; filename*=UTF-8''velmaro_%E2%80%AEvsc.desktop"},
    {"newline", "; filename*=UTF-8''velmaro_%0Adata.csv"},
    {"null-character", "; filename*=UTF-8''velmaro_data.csv%00.desktop"},
    {"control-characters", "; filename*=UTF-8''velmaro_%01%1B%7Fdata.csv"},
    {"leading-dash", R"(; filename="-rf velmaro_data.csv")"},
    {"desktop-entry", R"(; filename="velmaro_data.desktop")"},
    {"upper-case", R"(; filename="VELMARO_DATA.CSV")"},
    {"no-extension", R"(; filename="README")"},
    {"wrong-extension", R"(; filename="velmaro_data.html")"},
    {"two-extensions", R"(; filename="velmaro_export.tar.zip")"},
    {"composed", "; filename*=UTF-8''velmaro_caf%C3%A9.csv"},
    {"decomposed", "; filename*=UTF-8''velmaro_cafe%CC%81.csv"},
    {"raw-latin-1", "; filename=\"velmaro_caf\xE9.csv\""},
    {"broken-utf-8", "; filename*=UTF-8''velmaro_%C3%28data.csv"},
    {"percent", R"(; filename="velmaro_100%25%20data.csv")"},
    {"quotes", R"(; filename="velmaro_\"data\".csv")"},
    {"markup", R"(; filename="velmaro_<b>&amp;</b>.csv")"},
    {"emoji", "; filename*=UTF-8''velmaro_%F0%9F%9A%97.csv"},
    {"two-names", R"(; filename="first.csv"; filename="second.csv")"},
};

} // namespace

std::span<const AttachmentName> attachmentNames()
{
    return names;
}

} // namespace demo
