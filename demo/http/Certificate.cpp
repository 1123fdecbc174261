#include "http/Certificate.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <gnutls/crypto.h>
#include <gnutls/gnutls.h>
#include <gnutls/x509.h>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace demo {

namespace {

constexpr std::time_t day = 24L * 60 * 60;
constexpr std::time_t validity = 397 * day; // Browsers accept no certificate of a longer life.
constexpr std::array<unsigned char, 4> loopbackAddress = {127, 0, 0, 1};

struct Release {
    void operator()(gnutls_x509_crt_t certificate) const { gnutls_x509_crt_deinit(certificate); }
    void operator()(gnutls_x509_privkey_t key) const { gnutls_x509_privkey_deinit(key); }
};
using OwnedCertificate = std::unique_ptr<std::remove_pointer_t<gnutls_x509_crt_t>, Release>;
using OwnedKey = std::unique_ptr<std::remove_pointer_t<gnutls_x509_privkey_t>, Release>;

void require(int result)
{
    if (result < 0)
        throw std::runtime_error(std::string("certificate: ") + gnutls_strerror(result));
}

OwnedCertificate emptyCertificate()
{
    gnutls_x509_crt_t certificate = nullptr;
    require(gnutls_x509_crt_init(&certificate));
    return OwnedCertificate(certificate);
}

OwnedKey emptyKey()
{
    gnutls_x509_privkey_t key = nullptr;
    require(gnutls_x509_privkey_init(&key));
    return OwnedKey(key);
}

gnutls_datum_t datum(const std::string& text)
{
    return {reinterpret_cast<unsigned char*>(const_cast<char*>(text.data())),
        static_cast<unsigned>(text.size())};
}

std::string fileText(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Written beside and moved into place: another start never reads half a file.
void writeFile(const std::filesystem::path& file, const std::string& text, mode_t mode)
{
    auto temporary = file;
    temporary += ".new";
    ::unlink(temporary.c_str());
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    const bool isWritten = descriptor >= 0
        && ::write(descriptor, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    if (descriptor >= 0)
        ::close(descriptor);
    if (!isWritten)
        throw std::runtime_error(file.string() + ": " + std::strerror(errno));
    std::filesystem::rename(temporary, file);
}

bool namesEveryHost(gnutls_x509_crt_t certificate)
{
    return std::all_of(std::begin(certificateHosts), std::end(certificateHosts),
        [&](const char* host) { return gnutls_x509_crt_check_hostname(certificate, host) != 0; });
}

bool belongTogether(gnutls_x509_crt_t certificate, gnutls_x509_privkey_t key)
{
    std::array<unsigned char, 64> certificateId{};
    std::array<unsigned char, 64> keyId{};
    std::size_t certificateSize = certificateId.size();
    std::size_t keySize = keyId.size();
    return gnutls_x509_crt_get_key_id(certificate, 0, certificateId.data(), &certificateSize) == 0
        && gnutls_x509_privkey_get_key_id(key, 0, keyId.data(), &keySize) == 0
        && certificateSize == keySize && certificateId == keyId;
}

bool isUsable(const Certificate& files)
{
    const std::string certificateText = fileText(files.certificateFile);
    const std::string keyText = fileText(files.keyFile);
    const auto certificateDatum = datum(certificateText);
    const auto keyDatum = datum(keyText);
    const auto certificate = emptyCertificate();
    const auto key = emptyKey();
    if (gnutls_x509_crt_import(certificate.get(), &certificateDatum, GNUTLS_X509_FMT_PEM) < 0)
        return false;
    if (gnutls_x509_privkey_import(key.get(), &keyDatum, GNUTLS_X509_FMT_PEM) < 0)
        return false;
    return gnutls_x509_crt_get_activation_time(certificate.get()) <= std::time(nullptr)
        && gnutls_x509_crt_get_expiration_time(certificate.get()) > std::time(nullptr) + 7 * day
        && belongTogether(certificate.get(), key.get()) && namesEveryHost(certificate.get());
}

void fill(gnutls_x509_crt_t certificate, gnutls_x509_privkey_t key)
{
    constexpr char name[] = "Velmaro demo service";
    std::array<unsigned char, 16> serial{};
    require(gnutls_rnd(GNUTLS_RND_NONCE, serial.data(), serial.size()));
    serial[0] &= 0x7F; // A serial number is positive.

    require(gnutls_x509_crt_set_version(certificate, 3));
    require(gnutls_x509_crt_set_serial(certificate, serial.data(), serial.size()));
    require(gnutls_x509_crt_set_dn_by_oid(
        certificate, GNUTLS_OID_X520_COMMON_NAME, 0, name, sizeof name - 1));
    require(gnutls_x509_crt_set_activation_time(certificate, std::time(nullptr) - day));
    require(gnutls_x509_crt_set_expiration_time(certificate, std::time(nullptr) + validity - day));
    for (const char* host : certificateHosts) {
        require(gnutls_x509_crt_set_subject_alt_name(certificate, GNUTLS_SAN_DNSNAME, host,
            static_cast<unsigned>(std::strlen(host)), GNUTLS_FSAN_APPEND));
    }
    require(gnutls_x509_crt_set_subject_alt_name(certificate, GNUTLS_SAN_IPADDRESS,
        loopbackAddress.data(), loopbackAddress.size(), GNUTLS_FSAN_APPEND));
    require(gnutls_x509_crt_set_basic_constraints(certificate, 0, -1));
    require(gnutls_x509_crt_set_key_usage(certificate, GNUTLS_KEY_DIGITAL_SIGNATURE));
    require(gnutls_x509_crt_set_key_purpose_oid(certificate, GNUTLS_KP_TLS_WWW_SERVER, 0));
    require(gnutls_x509_crt_set_key(certificate, key));
    require(gnutls_x509_crt_sign2(certificate, certificate, key, GNUTLS_DIG_SHA256, 0));
}

std::string ownedText(gnutls_datum_t exported)
{
    std::string text(reinterpret_cast<const char*>(exported.data), exported.size);
    gnutls_memset(exported.data, 0, exported.size);
    gnutls_free(exported.data);
    return text;
}

void make(const Certificate& files)
{
    const auto key = emptyKey();
    require(gnutls_x509_privkey_generate(
        key.get(), GNUTLS_PK_ECDSA, GNUTLS_CURVE_TO_BITS(GNUTLS_ECC_CURVE_SECP256R1), 0));
    const auto certificate = emptyCertificate();
    fill(certificate.get(), key.get());

    gnutls_datum_t keyText{};
    gnutls_datum_t certificateText{};
    require(gnutls_x509_privkey_export2_pkcs8(
        key.get(), GNUTLS_X509_FMT_PEM, nullptr, GNUTLS_PKCS_PLAIN, &keyText));
    writeFile(files.keyFile, ownedText(keyText), 0600);
    require(gnutls_x509_crt_export2(certificate.get(), GNUTLS_X509_FMT_PEM, &certificateText));
    writeFile(files.certificateFile, ownedText(certificateText), 0644);
}

} // namespace

Certificate Certificate::inFolder(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    Certificate files{folder / "certificate.pem", folder / "key.pem"};
    if (!isUsable(files))
        make(files);
    return files;
}

} // namespace demo
