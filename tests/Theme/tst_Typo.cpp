// SPDX-License-Identifier: MIT
#include "Theme/Typo.h"

#include "Support/LanguageManager.h"
#include "Support/UserDefaults.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_Typo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(m_folder.isValid());
        speak(AppLanguage::en);
    }

    void scale_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("weight");
        QTest::newRow("largeTitle") << 34 << 600;
        QTest::newRow("sectionTitle") << 22 << 600;
        QTest::newRow("title") << 16 << 600;
        QTest::newRow("headline") << 15 << 500;
        QTest::newRow("statValue") << 22 << 600;
        QTest::newRow("caption") << 13 << 400;
        QTest::newRow("small") << 11 << 400;
    }
    void scale()
    {
        QFETCH(const int, size);
        QFETCH(const int, weight);
        const Typo typo;
        const QFont font = typo.property(QTest::currentDataTag()).value<QFont>();
        QCOMPARE(font.pixelSize(), size);
        QCOMPARE(font.weight(), weight);
        QVERIFY(!font.italic());
    }

    void buttonsAreLabelledInFifteenPoints()
    {
        const Typo typo;
        QCOMPARE(typo.property("button").value<QFont>().pixelSize(), 15);
    }

    void everyFontIsOfTheChosenFamilies()
    {
        speak(AppLanguage::ja);
        const Typo typo;
        const QMetaObject *type = typo.metaObject();
        const QStringList asked = typo.families().isEmpty() ? QGuiApplication::font().families() : typo.families();
        for (int at = type->propertyOffset(); at < type->propertyCount(); ++at)
            QCOMPARE(type->property(at).read(&typo).value<QFont>().families(), asked);
    }

    void sharedCharactersHaveTheLanguagesOwnForms_data()
    {
        QTest::addColumn<AppLanguage>("language");
        QTest::addColumn<QString>("family");
        QTest::newRow("Japanese") << AppLanguage::ja << u"Noto Sans CJK JP"_s;
        QTest::newRow("Korean") << AppLanguage::ko << u"Noto Sans CJK KR"_s;
        QTest::newRow("simplified Chinese") << AppLanguage::zhHans << u"Noto Sans CJK SC"_s;
        QTest::newRow("traditional Chinese") << AppLanguage::zhHant << u"Noto Sans CJK TC"_s;
        QTest::newRow("Thai") << AppLanguage::th << u"Noto Sans Thai"_s;
    }
    void sharedCharactersHaveTheLanguagesOwnForms()
    {
        QFETCH(const AppLanguage, language);
        QFETCH(const QString, family);
        Typo typo;
        const QStringList english = typo.families();
        QVERIFY(!english.contains(family));
        QSignalSpy changes(&typo, &Typo::changed);
        speak(language);
        typo.followLanguage();
        if (QFontDatabase::hasFamily(family)) {
            // Latin letters keep their family; the script's comes next, before any that a system would pick.
            QCOMPARE(typo.families().size(), 2);
            QCOMPARE(typo.families().last(), family);
            QCOMPARE(changes.count(), 1);
        } else {
            QCOMPARE(typo.families(), english); // one that is not installed is not asked for
            QCOMPARE(changes.count(), 0);
        }
        speak(AppLanguage::de);
        typo.followLanguage();
        QCOMPARE(typo.families(), english);
    }

    void saysNothingWhenTheLanguageChangesNoFamily()
    {
        Typo typo;
        QSignalSpy changes(&typo, &Typo::changed);
        speak(AppLanguage::fr);
        typo.followLanguage();
        QCOMPARE(changes.count(), 0);
    }

    void interIsTakenWhereItIsInstalled()
    {
        const Typo typo;
        QCOMPARE(typo.families().contains(u"Inter"_s), QFontDatabase::hasFamily(u"Inter"_s));
    }

private:
    void speak(AppLanguage language)
    {
        UserDefaults defaults{m_folder.filePath(u"Brisko.conf"_s)};
        LanguageManager::apply(language, defaults);
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_Typo)
#include "tst_Typo.moc"
