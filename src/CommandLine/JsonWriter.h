// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>
#include <QStringView>

#include <functional>
#include <optional>

namespace CommandLine {

/// Writes one JSON value piece by piece, keys in the order given, so that a list of any length takes no memory of its
/// own. Whole numbers keep all their 64 bits. The caller sees to it that what is opened is closed.
class JsonWriter
{
public:
    using Sink = std::function<void(QByteArrayView)>;
    explicit JsonWriter(Sink sink);
    ~JsonWriter();
    Q_DISABLE_COPY_MOVE(JsonWriter)

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    /// The key of the value that follows; plain ASCII without quotes.
    void key(QByteArrayView name);
    /// A key that is any text.
    void textKey(QStringView name);

    void text(QStringView value);
    void text(const QString &value) { text(QStringView(value)); }
    /// Text that is known to need no escaping, such as an address.
    void plainText(QByteArrayView ascii);
    void number(qint64 value);
    void number(double value);
    void boolean(bool value);
    void null();
    /// ISO 8601 in UTC, with a fraction of a second only when there is one; null for an invalid date.
    void date(const QDateTime &value);

    void text(const std::optional<QString> &value) { value ? text(QStringView(*value)) : null(); }
    void number(const std::optional<qint64> &value) { value ? number(*value) : null(); }
    void number(const std::optional<double> &value) { value ? number(*value) : null(); }
    void date(const std::optional<QDateTime> &value) { value ? date(*value) : null(); }

    void flush();

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void appendText(QStringView value);
    void endValue();

    Sink m_sink;
    QByteArray m_buffer;
    bool m_first = true; // whether the next value or key is the first of its object or array
};

} // namespace CommandLine
