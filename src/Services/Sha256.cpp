// SPDX-License-Identifier: MIT
#include "Services/Sha256.h"

#include <openssl/crypto.h>
#include <openssl/evp.h>

namespace {

/// Failures here mean no memory or a broken cryptography library; neither leaves anything to go on with.
void require(bool worked)
{
    if (!worked)
        qFatal("SHA-256 is not to be had from the cryptography library");
}

} // namespace

Sha256::Sha256()
    : m_algorithm(EVP_MD_fetch(nullptr, "SHA256", nullptr))
{
    require(m_algorithm != nullptr);
}

Sha256::~Sha256()
{
    EVP_MD_free(m_algorithm);
    // A pool's thread may still be on its way out when the program ends: what the library keeps for it goes now.
    OPENSSL_thread_stop();
}

Sha256::Run::Run(const Sha256 &algorithm)
    : m_context(EVP_MD_CTX_new())
{
    require(m_context != nullptr && EVP_DigestInit_ex2(m_context, algorithm.m_algorithm, nullptr) == 1);
}

Sha256::Run::~Run()
{
    EVP_MD_CTX_free(m_context);
}

void Sha256::Run::add(QByteArrayView bytes)
{
    require(EVP_DigestUpdate(m_context, bytes.data(), static_cast<size_t>(bytes.size())) == 1);
}

QByteArray Sha256::Run::finish()
{
    QByteArray digest(32, Qt::Uninitialized);
    require(EVP_DigestFinal_ex(m_context, reinterpret_cast<unsigned char *>(digest.data()), nullptr) == 1);
    return digest;
}
