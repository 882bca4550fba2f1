// SPDX-License-Identifier: MIT
// The whole window in each language: nothing stays in English when the language changes, and nothing is cut.
#include "App/AppDelegate.h"
#include "Fakes/FakeDesktop.h"
#include "Fakes/FakeScheduler.h"
#include "Fakes/Warnings.h"
#include "Support/Text.h"
#include "Views/LargeFilesPage.h"
#include "Views/PageFixture.h"
#include "Views/PageModels.h"

#include <QAccessible>
#include <QFile>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The English texts, as patterns of what they look like when they are filled.
struct English {
    QString text;
    QRegularExpression pattern;
};

QList<English> englishTexts()
{
    static const QRegularExpression placeholder(u"%(?:@|lld|%)"_s);
    QFile table(QStringLiteral(LOCALIZATION_FOLDER) + u"/de.lproj/Brisko.ts"_s);
    QList<English> texts;
    if (!table.open(QIODevice::ReadOnly))
        return texts;
    for (QXmlStreamReader reader(&table); !reader.atEnd();) {
        if (reader.readNext() != QXmlStreamReader::StartElement || reader.name() != u"source")
            continue;
        const QString text = reader.readElementText();
        QString letters = text;
        letters.remove(placeholder).remove(QRegularExpression(u"[^a-zA-Z]"_s));
        if (letters.size() < 3)
            continue; // no words of its own
        QStringList parts = text.split(placeholder);
        for (QString &part : parts)
            part = QRegularExpression::escape(part);
        texts.append({.text = text, .pattern = QRegularExpression(u'^' + parts.join(u".*"_s) + u'$')});
    }
    return texts;
}

/// What people see and hear of a window.
struct Words {
    QStringList shown;
    QStringList cut;
};

void collect(const QQuickItem *item, Words &words)
{
    if (!item->isVisible())
        return;
    const QVariant text = item->property("text");
    if (const QString shown = text.toString(); text.isValid() && !shown.isEmpty()) {
        words.shown.append(shown);
        // Names of files are cut in their middle, and may be.
        if (item->property("truncated").toBool() && item->property("elide").toInt() != Qt::ElideMiddle)
            words.cut.append(shown);
    }
    if (QAccessibleInterface *told = QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(item)))
        words.shown += {told->text(QAccessible::Name), told->text(QAccessible::Description)};
    for (const QQuickItem *child : item->childItems())
        collect(child, words);
}

/// A program with something on every page.
struct Program : PageFixture {
    Program()
    {
        app("Editor");
        startupItem(home.appending("Library/LaunchAgents").child("org.example.sync.plist"));
        tree.file("home/Library/Caches/example/cache", QByteArray(9'000, 'c'));
        tree.file("home/Library/Logs/example.log", QByteArray(9'000, 'l'));
        tree.sparseFile("home/Movies/film.mkv", 300'000'000);
        for (const char *name : {"a", "b"})
            tree.file(QByteArray("home/Downloads/") + name, QByteArray(9'000, 'd'));

        toastTime = 1ms;
        WindowEnvironment made;
        made.state = environment();
        made.desktop = &desktop;
        made.schedule = clock.scheduler();
        made.motion = Motion::reduced;
        made.isComposited = [] { return true; };
        made.hasTrayHost = [] { return true; };
        delegate = std::make_unique<AppDelegate>(made);
        delegate->applicationDidFinishLaunching();
        delegate->window()->resize(delegate->window()->minimumSize());
    }
    ~Program()
    {
        delegate.reset();
        settle();
    }
    Q_DISABLE_COPY_MOVE(Program)

    AppState &state() { return delegate->state(); }
    void scanEverything()
    {
        wait(state().scanApps());
        QTRY_VERIFY(!state().appDetailsLoading());
        wait(state().scanJunkAsync());
        wait(state().scanLargeFilesAsync(QList<FileURL>{home.appending("Movies")}, 1'000));
        wait(state().scanDuplicates({home.appending("Downloads")}));
        wait(state().scanStartupItems());
        QTRY_VERIFY(!state().toast()); // it was said in the language of its time
    }
    void settleScans()
    {
        const AppState &all = state();
        QTRY_VERIFY(!all.scanning() && !all.appsLoading() && !all.appDetailsLoading() && !all.junkLoading() &&
                    !all.largeFilesLoading() && !all.duplicatesLoading() && !all.startupLoading() && !all.toast() &&
                    all.scanDetail().isEmpty());
    }
    Words words(QQuickWindow &window)
    {
        window.grabWindow(); // everything has its size by then
        Words words;
        collect(window.contentItem(), words);
        return words;
    }

    FakeDesktop desktop;
    FakeScheduler clock;
    std::unique_ptr<AppDelegate> delegate;
};

} // namespace

class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_english = englishTexts();
        QVERIFY(m_english.size() > 200);
    }
    void init() { failOnWarnings(); }

    void everyPage_data()
    {
        QTest::addColumn<AppLanguage>("language");
        for (const AppLanguage language : allLanguages()) {
            if (language != AppLanguage::system && language != AppLanguage::en)
                QTest::newRow(qPrintable(rawValue(language))) << language;
        }
    }
    void everyPage()
    {
        QFETCH(const AppLanguage, language);
        Program program;
        program.scanEverything();
        GlassWindow &window = *program.delegate->window();
        for (const Page page : {Page::overview, Page::uninstaller, Page::duplicates, Page::largeFiles, Page::junk,
                                Page::startup, Page::settings}) {
            program.state().setLanguage(AppLanguage::en);
            program.state().setSelection(page);
            program.settleScans(); // what is said of a scan is in the language that it began in
            const Words before = program.words(window);
            QVERIFY(before.shown.contains(u"Large Files"_s));
            program.state().setLanguage(language);
            QCOMPARE(program.state().selection(), page);
            judge(program.words(window), before);
        }
    }

    void theOpenModal_data() { everyPage_data(); }
    void theOpenModal()
    {
        QFETCH(const AppLanguage, language);
        Program program;
        program.scanEverything();
        program.state().setSelection(Page::junk);
        program.settleScans();
        GlassWindow &window = *program.delegate->window();
        LargeFilesPage &page = *program.delegate->pages()->largeFiles();
        page.toggle(page.files()->index(0, 0).data(page.files()->roleNames().key("itemId")).toString());
        page.remove();
        QVERIFY(program.state().confirm());
        const Words before = program.words(window);
        QVERIFY(before.shown.contains(u"Cancel"_s));
        program.state().setLanguage(language);
        QVERIFY(program.state().confirm());
        judge(program.words(window), before);
    }

    void thePanel_data() { everyPage_data(); }
    void thePanel()
    {
        QFETCH(const AppLanguage, language);
        Program program;
        program.scanEverything();
        program.settleScans();
        program.delegate->toggleStatusPopover();
        PanelWindow &panel = program.delegate->statusPopover();
        QVERIFY(panel.isVisible());
        const Words before = program.words(panel);
        QVERIFY(before.shown.contains(u"Quit Brisko"_s));
        program.state().setLanguage(language);
        judge(program.words(panel), before);
    }

private:
    void judge(const Words &words, const Words &before)
    {
        QCOMPARE_GE(words.shown.size(), before.shown.size() / 2);
        QCOMPARE(words.cut.join(u'\n'), QString());
        QStringList left;
        for (const QString &shown : words.shown) {
            for (const English &english : std::as_const(m_english)) {
                if (Text::lookup(english.text) != english.text && english.pattern.match(shown).hasMatch())
                    left.append(shown);
            }
        }
        QCOMPARE(left.join(u'\n'), QString());
    }

    QList<English> m_english;
};

QTEST_MAIN(tst_Languages)
#include "tst_Languages.moc"
