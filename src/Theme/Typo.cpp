// SPDX-License-Identifier: MIT
#include "Theme/Typo.h"

#include "Support/LanguageManager.h"

#include <QFontDatabase>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace {

/// Characters that Chinese, Japanese and Korean share are drawn in the forms of the first family that has them.
QString familyOfScript(AppLanguage language)
{
    switch (language) {
    case AppLanguage::ja:
        return u"Noto Sans CJK JP"_s;
    case AppLanguage::ko:
        return u"Noto Sans CJK KR"_s;
    case AppLanguage::zhHans:
        return u"Noto Sans CJK SC"_s;
    case AppLanguage::zhHant:
        return u"Noto Sans CJK TC"_s;
    case AppLanguage::th:
        return u"Noto Sans Thai"_s;
    default:
        return {};
    }
}

} // namespace

Typo::Typo(QObject *parent)
    : QObject(parent)
{
    chooseFamilies();
}

void Typo::followLanguage()
{
    const QStringList before = m_families;
    chooseFamilies();
    if (m_families != before)
        Q_EMIT changed();
}

void Typo::chooseFamilies()
{
    m_families.clear();
    const QString inter = u"Inter"_s;
    const QString script = familyOfScript(LanguageManager::shownLanguage());
    if (QFontDatabase::hasFamily(inter))
        m_families.append(inter);
    if (!script.isEmpty() && QFontDatabase::hasFamily(script)) {
        if (m_families.isEmpty())
            m_families.append(QGuiApplication::font().family());
        m_families.append(script);
    }
}

QFont Typo::font(int pixelSize, QFont::Weight weight) const
{
    QFont font = QGuiApplication::font();
    if (!m_families.isEmpty())
        font.setFamilies(m_families);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}
