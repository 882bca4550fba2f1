// SPDX-License-Identifier: MIT
// What a translator may get wrong, found without knowing the language.
#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

struct Message {
    QString source;
    QString translation;
    bool finished = false;
};

QList<Message> messagesOf(const QString &file)
{
    QFile table(file);
    if (!table.open(QIODevice::ReadOnly))
        throw std::runtime_error("a table could not be opened");
    QXmlStreamReader reader(&table);
    QList<Message> messages;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == u"source")
            messages.append({.source = reader.readElementText(), .translation = {}, .finished = false});
        else if (reader.name() == u"translation") {
            messages.last().finished = !reader.attributes().hasAttribute(u"type"_s);
            messages.last().translation = reader.readElementText();
        }
    }
    if (reader.hasError())
        throw std::runtime_error(reader.errorString().toStdString());
    return messages;
}

/// Each placeholder with the argument it takes, whatever their order in the text.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression form(u"%(?:(\\d+)\\$)?(@|lld)"_s);
    QStringList found;
    int next = 0;
    for (auto match = form.globalMatch(QString(text).replace(u"%%"_s, QString())); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        const QString position = one.captured(1).isEmpty() ? QString::number(++next) : one.captured(1);
        found.append(position + one.captured(2));
    }
    std::sort(found.begin(), found.end());
    return found;
}

/// How many percent signs a text shows. Each pair counts once: three in a row are a sign before a placeholder.
qsizetype percentSigns(const QString &text)
{
    return (text.size() - QString(text).remove(u"%%"_s).size()) / 2;
}

class Localization : public testing::TestWithParam<QString>
{
protected:
    [[nodiscard]] static QString fileOf(const QString &code)
    {
        return QStringLiteral(LOCALIZATION_FOLDER) + u"/%1.lproj/Brisko.ts"_s.arg(code);
    }
};

TEST_P(Localization, isCompleteAndKeepsEveryPlaceholder)
{
    const QList<Message> messages = messagesOf(fileOf(GetParam()));
    ASSERT_FALSE(messages.isEmpty());
    for (const Message &message : messages) {
        const std::string source = message.source.toStdString();
        EXPECT_TRUE(message.finished) << source;
        EXPECT_FALSE(message.translation.trimmed().isEmpty()) << source;
        EXPECT_EQ(placeholders(message.translation), placeholders(message.source)) << source;
        EXPECT_EQ(percentSigns(message.translation), percentSigns(message.source)) << source;
    }
}

TEST_P(Localization, translatesEachTextOnceAndTheSameTextsAsTheOthers)
{
    QStringList sources;
    for (const Message &message : messagesOf(fileOf(GetParam())))
        sources.append(message.source);
    EXPECT_EQ(sources.removeDuplicates(), 0);
    QStringList german;
    for (const Message &message : messagesOf(fileOf(u"de"_s)))
        german.append(message.source);
    sources.sort();
    german.sort();
    EXPECT_EQ(sources, german);
}

INSTANTIATE_TEST_SUITE_P(Languages, Localization, testing::Values(u"de"_s, u"ja"_s));

} // namespace
