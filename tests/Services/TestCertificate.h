// SPDX-License-Identifier: MIT
#pragma once

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <memory>
#include <stdexcept>

/// A certificate for this machine that signs itself, made anew for each run.
class TestCertificate
{
public:
    TestCertificate()
    {
        const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
        const std::unique_ptr<X509, decltype(&X509_free)> made(X509_new(), &X509_free);
        X509_set_version(made.get(), 2);
        ASN1_INTEGER_set(X509_get_serialNumber(made.get()), 1);
        X509_gmtime_adj(X509_getm_notBefore(made.get()), -3600);
        X509_gmtime_adj(X509_getm_notAfter(made.get()), 3600);
        X509_set_pubkey(made.get(), key.get());
        X509_NAME *name = X509_get_subject_name(made.get());
        const auto *text = reinterpret_cast<const unsigned char *>("localhost");
        X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text, -1, -1, 0);
        X509_set_issuer_name(made.get(), name);
        extend(made.get(), NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1");
        extend(made.get(), NID_basic_constraints, "critical,CA:TRUE");
        if (X509_sign(made.get(), key.get(), EVP_sha256()) == 0)
            throw std::runtime_error("the test's certificate could not be made");
        m_certificate = QSslCertificate(pem([&](BIO *out) { return PEM_write_bio_X509(out, made.get()); }));
        m_key = QSslKey(pem([&](BIO *out) {
                            return PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
                        }),
                        QSsl::Ec);
    }

    [[nodiscard]] QSslConfiguration serverConfiguration() const
    {
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(m_certificate);
        configuration.setPrivateKey(m_key);
        return configuration;
    }
    [[nodiscard]] const QSslCertificate &certificate() const { return m_certificate; }

private:
    static void extend(X509 *made, int kind, const char *value)
    {
        const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
            X509V3_EXT_conf_nid(nullptr, nullptr, kind, value), &X509_EXTENSION_free);
        X509_add_ext(made, extension.get(), -1);
    }
    template <typename Write>
    static QByteArray pem(Write write)
    {
        const std::unique_ptr<BIO, decltype(&BIO_free)> out(BIO_new(BIO_s_mem()), &BIO_free);
        if (write(out.get()) != 1)
            throw std::runtime_error("the test's certificate could not be written");
        char *text = nullptr;
        const long length = BIO_get_mem_data(out.get(), &text);
        return QByteArray(text, length);
    }

    QSslCertificate m_certificate;
    QSslKey m_key;
};
