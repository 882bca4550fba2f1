// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

struct evp_md_ctx_st;
struct evp_md_st;

/// SHA-256, with the processor's own instructions where it has them. Looking the algorithm up costs more than hashing
/// a small file, so one object serves a whole scan. Any thread; a `Run` belongs to one thread at a time.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Q_DISABLE_COPY_MOVE(Sha256)

    /// One digest in the making.
    class Run
    {
    public:
        explicit Run(const Sha256 &algorithm);
        ~Run();
        Q_DISABLE_COPY_MOVE(Run)
        void add(QByteArrayView bytes);
        /// The 32 bytes of the digest; nothing may be added afterwards.
        [[nodiscard]] QByteArray finish();

    private:
        evp_md_ctx_st *m_context;
    };

    /// A digest as 64 lower-case hexadecimal digits.
    [[nodiscard]] static QString text(const QByteArray &digest) { return QString::fromLatin1(digest.toHex()); }

private:
    evp_md_st *m_algorithm;
};
