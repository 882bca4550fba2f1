// SPDX-License-Identifier: MIT
// What a translator may get wrong, found without knowing the language.
#include "Models/Preferences.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
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

/// What follows the opening bracket of a call, up to the end of its first argument.
QString firstArgument(const QString &code, qsizetype from)
{
    int depth = 0;
    bool isQuoted = false;
    for (qsizetype at = from; at < code.size(); ++at) {
        const QChar sign = code[at];
        if (isQuoted) {
            if (sign == u'\\')
                ++at;
            else if (sign == u'"')
                isQuoted = false;
        } else if (sign == u'"') {
            isQuoted = true;
        } else if (QStringView(u"([{").contains(sign)) {
            ++depth;
        } else if (QStringView(u")]}").contains(sign) || (sign == u',' && depth == 0)) {
            if (depth-- == 0)
                return code.sliced(from, at - from);
        }
    }
    throw std::runtime_error("a call without an end");
}

/// The texts in a piece of code, each with its parts put together.
QStringList literals(const QString &code)
{
    static const QRegularExpression form(uR"re(u?"((?:[^"\\]|\\.)*)"(?:_s)?(\s*))re"_s);
    QStringList texts;
    qsizetype end = -1;
    for (auto match = form.globalMatch(code); match.hasNext();) {
        const QRegularExpressionMatch one = match.next();
        QString text = one.captured(1);
        text.replace(u"\\\""_s, u"\""_s);
        if (one.capturedStart() == end)
            texts.last() += text;
        else
            texts.append(text);
        end = one.capturedEnd();
    }
    return texts;
}

/// Every text that the sources look up, or mark to be looked up.
QSet<QString> textsOfSources()
{
    static const QRegularExpression call(uR"re(\b(?:Text::(?:lookup|filled)|textKey|Texts\.(?:of|fill))\()re"_s);
    QSet<QString> texts;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER), {u"*.cpp"_s, u"*.h"_s, u"*.mm"_s, u"*.qml"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("a source could not be opened");
        const QString code = QString::fromUtf8(file.readAll());
        for (auto match = call.globalMatch(code); match.hasNext();) {
            for (const QString &text : literals(firstArgument(code, match.next().capturedEnd())))
                texts.insert(text);
        }
    }
    return texts;
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

TEST_P(Localization, translatesEachTextOnce)
{
    QStringList sources;
    for (const Message &message : messagesOf(fileOf(GetParam())))
        sources.append(message.source);
    EXPECT_EQ(sources.removeDuplicates(), 0);
}

TEST_P(Localization, translatesWhatTheSourcesShowAndNothingElse)
{
    const QSet<QString> shown = textsOfSources();
    QSet<QString> translated;
    for (const Message &message : messagesOf(fileOf(GetParam())))
        translated.insert(message.source);
    EXPECT_GT(shown.size(), 200);
    EXPECT_EQ(QStringList((shown - translated).values()).join(u'\n'), QString()) << "have no translation";
    EXPECT_EQ(QStringList((translated - shown).values()).join(u'\n'), QString()) << "are shown by nothing";
}

TEST(Localizations, areThoseOfTheLanguagesThatCanBeChosen)
{
    QStringList folders = QDir(QStringLiteral(LOCALIZATION_FOLDER)).entryList({u"*.lproj"_s}, QDir::Dirs);
    QStringList expected;
    for (const AppLanguage language : allLanguages()) {
        if (language != AppLanguage::system && language != AppLanguage::en)
            expected.append(rawValue(language) + u".lproj"_s);
    }
    folders.sort();
    expected.sort();
    EXPECT_EQ(folders, expected);
}

TEST(Localizations, areFoundInSourcesAsTheyAreWritten)
{
    EXPECT_EQ(firstArgument(u"f(u\"a, (\\\"b\", 1)"_s, 2), u"u\"a, (\\\"b\""_s);
    EXPECT_EQ(literals(u"u\"one \"\n  u\"text\""_s), QStringList{u"one text"_s});
    EXPECT_EQ(literals(u"n == 1 ? u\"one\" : u\"many\""_s), (QStringList{u"one"_s, u"many"_s}));
    EXPECT_TRUE(textsOfSources().contains(u"Chat App Caches"_s));
}

INSTANTIATE_TEST_SUITE_P(Languages, Localization,
                         testing::Values(u"ja"_s, u"ko"_s, u"zh-Hans"_s, u"zh-Hant"_s, u"de"_s, u"fr"_s, u"es"_s,
                                         u"it"_s, u"tr"_s, u"th"_s));

} // namespace
