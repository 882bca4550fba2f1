// SPDX-License-Identifier: MIT
#include "Views/DuplicatesPage.h"
#include "Views/JunkPage.h"
#include "Views/LargeFilesPage.h"
#include "Views/PageFixture.h"
#include "Views/ViewWindow.h"

#include <QQmlExtensionPlugin>
#include <QTest>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PagesPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ViewsPlugin)

using namespace Qt::StringLiterals;

/// The pages of junk, large files and duplicates as they are drawn, clicked and reached by the keyboard.
class tst_ListViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void junkShowsCardsAndTicksThem();
    void junkOpensACard();
    void junkIsReachedByTheKeyboard();
    void junkCleansAfterTheQuestion();
    void largeFilesShowRowsAndTickThem();
    void largeFilesKeepTheirPlaceInALongList();
    void largeFilesOfferThresholds();
    void largeFilesOfferAMenu();
    void largeFilesTakeFoldersOff();
    void duplicatesShowGroupsAndKeepACopy();
    void duplicatesCollapse();
    void duplicatesAreReachedByTheKeyboard();
    void scansCanBeStopped();
};

namespace {

constexpr qint64 kLarge = 200 * 1'048'576;

bool isSelected(const QQuickItem *row)
{
    return row->property("selected").toBool();
}

QStringList names(const QList<QQuickItem *> &rows)
{
    QStringList names;
    for (const QQuickItem *row : rows)
        names.append(row->property("name").toString());
    return names;
}

struct Junk : PageFixture {
    Junk()
    {
        oldDownload("installer notes.zip", 700'000);
        for (int i = 0; i < 12; ++i)
            tree.file("home/Library/Caches/org.example.app" + QByteArray::number(i), QByteArray(40'000, 'c'));
        page = std::make_unique<JunkPage>(make(), actions);
        wait(state->scanJunkAsync());
        window = std::make_unique<ViewWindow>(u"JunkView.qml"_s, page.get());
    }
    std::unique_ptr<JunkPage> page;
    std::unique_ptr<ViewWindow> window;
};

struct LargeFiles : PageFixture {
    explicit LargeFiles(int count)
    {
        for (int i = 0; i < count; ++i)
            tree.sparseFile("home/Movies/film " + QByteArray::number(i + 100) + ".mov", kLarge - i);
        page = std::make_unique<LargeFilesPage>(make(), actions);
        wait(state->scanLargeFilesAsync());
        window = std::make_unique<ViewWindow>(u"LargeFilesView.qml"_s, page.get());
    }
    std::unique_ptr<LargeFilesPage> page;
    std::unique_ptr<ViewWindow> window;
};

struct Duplicates : PageFixture {
    Duplicates()
    {
        for (const QByteArray name : {"a1", "a2", "a3"})
            tree.file("home/Pictures/" + name, QByteArray(9'000, 'a'));
        for (const QByteArray name : {"b1", "b2"})
            tree.file("home/Pictures/" + name, QByteArray(5'000, 'b'));
        page = std::make_unique<DuplicatesPage>(make(), actions);
        wait(state->scanDuplicates());
        window = std::make_unique<ViewWindow>(u"DuplicatesView.qml"_s, page.get());
    }
    /// The row of a file.
    [[nodiscard]] QQuickItem *file(const QString &name) const
    {
        for (QQuickItem *row : window->all(u"duplicateFile"_s)) {
            if (row->property("name") == name)
                return row;
        }
        return nullptr;
    }
    [[nodiscard]] QQuickItem *check(const QString &name) const
    {
        const QList<QQuickItem *> checks = window->all(u"duplicateFileCheck"_s);
        const auto found = std::ranges::find_if(
            checks, [&name](const QQuickItem *item) { return item->property("label").toString() == name; });
        return found == checks.cend() ? nullptr : *found;
    }
    std::unique_ptr<DuplicatesPage> page;
    std::unique_ptr<ViewWindow> window;
};

} // namespace

void tst_ListViews::junkShowsCardsAndTicksThem()
{
    Junk f;
    QVERIFY(f.window->isReady());
    QCOMPARE(f.window->text(u"pageTitle"_s), u"Junk Cleaner"_s);
    QCOMPARE(f.window->text(u"pageSubtitle"_s), u"2 categories · 1.2 MB reclaimable"_s);
    const QList<QQuickItem *> cards = f.window->all(u"junkCategory"_s);
    QCOMPARE(names(cards), (QStringList{u"Old Downloads"_s, u"App Caches"_s}));
    QVERIFY(!f.window->one(u"clean"_s)->isEnabled());
    f.window->click(cards.at(1));
    QVERIFY(!isSelected(cards.at(0)) && isSelected(cards.at(1)));
    QCOMPARE(f.window->text(u"pageStatus"_s), u"1 selected · 480 KB"_s);
    f.window->click(f.window->all(u"junkCategoryCheck"_s).at(0));
    QVERIFY2(isSelected(cards.at(0)), "a click on the check counts once");
    QVERIFY(f.window->one(u"clean"_s)->isEnabled());
}

void tst_ListViews::junkOpensACard()
{
    Junk f;
    QVERIFY(f.window->isReady());
    QVERIFY(f.window->all(u"junkFile"_s).isEmpty());
    f.window->click(f.window->all(u"junkCategoryChevron"_s).at(1));
    QTRY_COMPARE(f.window->all(u"junkFile"_s).size(), 10);
    QVERIFY2(!isSelected(f.window->all(u"junkCategory"_s).at(1)), "opening is not ticking");
    f.window->click(f.window->all(u"junkFile"_s).at(0), Qt::RightButton);
    QTRY_VERIFY(f.window->one(u"copyPath"_s));
    f.window->click(f.window->one(u"copyPath"_s));
    QCOMPARE(f.copied.size(), 1);
    QVERIFY2(!isSelected(f.window->all(u"junkCategory"_s).at(1)), "asking for the menu is not ticking");
    QVERIFY(f.copied.first().startsWith(f.home.appending("Library/Caches").text()));
    f.window->click(f.window->all(u"junkCategoryChevron"_s).at(1));
    QTRY_VERIFY(f.window->all(u"junkFile"_s).isEmpty());
}

void tst_ListViews::junkIsReachedByTheKeyboard()
{
    Junk f;
    QVERIFY(f.window->isReady());
    QVERIFY(f.window->tabTo(u"junkCategories"_s));
    const QList<QQuickItem *> cards = f.window->all(u"junkCategory"_s);
    f.window->press(Qt::Key_Space);
    QVERIFY(isSelected(cards.at(0)));
    f.window->press(Qt::Key_Down);
    f.window->press(Qt::Key_Space);
    QVERIFY(isSelected(cards.at(1)));
    f.window->press(Qt::Key_Right);
    QTRY_COMPARE(f.window->all(u"junkFile"_s).size(), 10);
    f.window->press(Qt::Key_Right);
    QCOMPARE(f.window->all(u"junkFile"_s).size(), 10);
    f.window->press(Qt::Key_Left);
    QTRY_VERIFY(f.window->all(u"junkFile"_s).isEmpty());
    QVERIFY(f.window->tabTo(u"scan"_s));
}

void tst_ListViews::junkCleansAfterTheQuestion()
{
    Junk f;
    QVERIFY(f.window->isReady());
    f.window->click(f.window->all(u"junkCategory"_s).at(0));
    f.window->click(f.window->one(u"clean"_s));
    QVERIFY(f.state->confirm());
    QCOMPARE(f.window->all(u"junkCategory"_s).size(), 2);
    f.state->acceptConfirm();
    QTRY_COMPARE(names(f.window->all(u"junkCategory"_s)), QStringList{u"App Caches"_s});
    QTRY_VERIFY(!f.state->removing());
}

void tst_ListViews::largeFilesShowRowsAndTickThem()
{
    LargeFiles f(3);
    QVERIFY(f.window->isReady());
    const QList<QQuickItem *> rows = f.window->all(u"largeFile"_s);
    QCOMPARE(names(rows), (QStringList{u"film 100.mov"_s, u"film 101.mov"_s, u"film 102.mov"_s}));
    f.window->click(rows.at(2));
    QVERIFY(isSelected(rows.at(2)) && !isSelected(rows.at(1)));
    QCOMPARE(f.window->text(u"pageStatus"_s), u"1 file selected · 209.7 MB"_s);
    f.window->click(f.window->one(u"remove"_s));
    QVERIFY(f.state->confirm());
}

void tst_ListViews::largeFilesKeepTheirPlaceInALongList()
{
    LargeFiles f(60);
    QVERIFY(f.window->isReady());
    QVERIFY2(f.window->all(u"largeFile"_s).size() < 40, "only what is in sight exists");
    auto *list = f.window->one(u"largeFiles"_s);
    list->setProperty("contentY", 1'200);
    QTRY_VERIFY(!names(f.window->all(u"largeFile"_s)).contains(u"film 100.mov"_s));
    f.tree.sparseFile("home/Movies/smallest.mov", kLarge - 1'000);
    StateFixture::wait(f.state->scanLargeFilesAsync());
    QTRY_COMPARE(list->property("count").toInt(), 61);
    QCOMPARE(list->property("contentY").toInt(), 1'200);
}

void tst_ListViews::largeFilesOfferThresholds()
{
    LargeFiles f(1);
    QVERIFY(f.window->isReady());
    QCOMPARE(f.window->text(u"threshold"_s), u"≥ 100 MB"_s);
    f.window->click(f.window->one(u"threshold"_s));
    QTRY_COMPARE(f.window->all(u"thresholdChoice"_s).size(), 6);
    const QList<QQuickItem *> choices = f.window->all(u"thresholdChoice"_s);
    QCOMPARE(choices.at(5)->property("text").toString(), u"1 GB"_s);
    QVERIFY(choices.at(2)->property("chosen").toBool());
    f.window->click(choices.at(5));
    QCOMPARE(f.window->text(u"threshold"_s), u"≥ 1 GB"_s);
    QTRY_VERIFY(f.window->all(u"thresholdChoice"_s).isEmpty());
}

void tst_ListViews::largeFilesOfferAMenu()
{
    LargeFiles f(2);
    QVERIFY(f.window->isReady());
    f.window->click(f.window->all(u"largeFile"_s).at(1), Qt::RightButton);
    QTRY_VERIFY(f.window->one(u"showInFileManager"_s));
    QVERIFY2(!isSelected(f.window->all(u"largeFile"_s).at(1)), "asking for the menu is not ticking");
    f.window->click(f.window->one(u"showInFileManager"_s));
    QCOMPARE(f.fakes.workspace->shown, QList<FileURL>{f.home.appending("Movies/film 101.mov")});
    QTRY_VERIFY(!f.window->one(u"showInFileManager"_s));
    QVERIFY(f.window->tabTo(u"largeFiles"_s));
    f.window->press(Qt::Key_Menu);
    QTRY_VERIFY(f.window->one(u"copyPath"_s));
    f.window->press(Qt::Key_Escape);
    QTRY_VERIFY(!f.window->one(u"copyPath"_s));
    QVERIFY(f.copied.isEmpty());
}

void tst_ListViews::largeFilesTakeFoldersOff()
{
    LargeFiles f(1);
    QVERIFY(f.window->isReady());
    QCOMPARE(f.window->text(u"foldersLabel"_s), u"Folders:"_s);
    f.window->click(f.window->one(u"removeFolder"_s));
    QCOMPARE(f.window->text(u"foldersLabel"_s), u"Add folders to scan"_s);
    QVERIFY(f.state->largeFileFolders().isEmpty());
}

void tst_ListViews::duplicatesShowGroupsAndKeepACopy()
{
    Duplicates f;
    QVERIFY(f.window->isReady());
    const QList<QQuickItem *> heads = f.window->all(u"duplicateGroup"_s);
    QCOMPARE(heads.size(), 2);
    QCOMPARE(f.window->all(u"duplicateFile"_s).size(), 5);
    const auto topOf = [](const QQuickItem *head) { return head->property("background").value<QQuickItem *>()->y(); };
    QCOMPARE(topOf(heads.at(0)), 0);
    QCOMPARE(topOf(heads.at(1)), 12);
    f.window->click(f.file(u"b1"_s));
    QVERIFY(isSelected(f.file(u"b1"_s)));
    QVERIFY2(!f.check(u"b2"_s)->isEnabled(), "at least one copy is kept");
    QVERIFY(f.check(u"b1"_s)->isEnabled() && f.check(u"a1"_s)->isEnabled());
    f.window->click(f.file(u"b2"_s));
    f.window->click(f.check(u"b2"_s));
    QVERIFY(!isSelected(f.file(u"b2"_s)));
    const QList<QQuickItem *> keep = f.window->all(u"keepFirst"_s);
    for (const QQuickItem *button : keep)
        f.window->click(button);
    QVERIFY(!isSelected(f.file(u"a1"_s)) && isSelected(f.file(u"a2"_s)) && isSelected(f.file(u"a3"_s)));
    QVERIFY(!isSelected(f.file(u"b1"_s)) && isSelected(f.file(u"b2"_s)));
    QCOMPARE(f.window->text(u"pageStatus"_s), u"3 files selected · 23 KB"_s);
}

void tst_ListViews::duplicatesCollapse()
{
    Duplicates f;
    QVERIFY(f.window->isReady());
    f.window->click(f.window->all(u"duplicateGroupChevron"_s).at(0));
    QTRY_COMPARE(f.window->all(u"duplicateFile"_s).size(), 2);
    f.window->click(f.window->all(u"duplicateGroup"_s).at(0));
    QTRY_COMPARE(f.window->all(u"duplicateFile"_s).size(), 5);
}

void tst_ListViews::duplicatesAreReachedByTheKeyboard()
{
    Duplicates f;
    QVERIFY(f.window->isReady());
    QVERIFY(f.window->tabTo(u"duplicates"_s));
    f.window->press(Qt::Key_Down);
    f.window->press(Qt::Key_Space);
    QVERIFY(isSelected(f.window->all(u"duplicateFile"_s).at(0)));
    f.window->press(Qt::Key_Up);
    f.window->press(Qt::Key_Left);
    QTRY_COMPARE(f.window->all(u"duplicateFile"_s).size(), 2);
    f.window->press(Qt::Key_Return);
    QTRY_COMPARE(f.window->all(u"duplicateFile"_s).size(), 5);
}

void tst_ListViews::scansCanBeStopped()
{
    Duplicates f;
    QVERIFY(f.window->isReady());
    const StateFixture::Held held(f);
    QVERIFY(!f.window->one(u"stopScan"_s));
    f.window->click(f.window->one(u"scan"_s));
    QVERIFY(f.state->duplicatesLoading());
    QTRY_VERIFY(f.window->one(u"stopScan"_s));
    QVERIFY(!f.window->one(u"scan"_s)->isEnabled());
    f.window->click(f.window->one(u"stopScan"_s));
    QVERIFY(!f.state->duplicatesLoading());
    QTRY_VERIFY(!f.window->one(u"stopScan"_s));
}

QTEST_MAIN(tst_ListViews)
#include "tst_ListViews.moc"
