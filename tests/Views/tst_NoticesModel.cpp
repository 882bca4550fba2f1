// SPDX-License-Identifier: MIT
#include "Views/NoticesModel.h"

#include "Theme/Format.h"
#include "Views/AppIconImages.h"
#include "Views/PageFixture.h"
#include "Views/UpdateFeed.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_NoticesModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAToastUntilTheStateClearsIt();
    void takesTheToastsColour();
    void showsAndDismissesAnAlert();
    void showsAQuestion();
    void prefersTheIconToTheSymbol();
    void cancelsAQuestion();
    void acceptsAQuestionOnce();
    void ignoresTheBackdropWhileBusy();
    void isReadyForTheNextQuestion();
    void keepsTheTextsOfAQuestionThatLeaves();
    void showsAnUpdate();
    void showsNoPillForWhatTheFeedLeavesOut();
    void leavesAnUpdateForLater();
    void skipsAnUpdate();
    void downloadsAnUpdate();
    void translatesAnUpdate();
};

namespace {

ConfirmData question(std::function<void()> action = {})
{
    return {.id = QUuid::createUuid(),
            .iconImage = {},
            .symbol = u"trash"_s,
            .title = u"Remove it?"_s,
            .message = u"It will be moved."_s,
            .rows = {{u"Total Size"_s, u"5 MB"_s}, {u"Files"_s, u"3"_s}},
            .confirmTitle = u"Remove"_s,
            .onConfirm = std::move(action)};
}

/// Has a new state announce an update that a feed with these further members describes.
void announce(PageFixture &f, const QByteArray &members = {})
{
    const UpdateFeed feed(members);
    f.appcastURL = [url = feed.url()] { return std::expected<QUrl, QString>(url); };
    AppState &state = f.make();
    QCOMPARE(StateFixture::wait(state.checkForUpdates(true)), UpdateOutcome::available);
}

} // namespace

void tst_NoticesModel::showsAToastUntilTheStateClearsIt()
{
    PageFixture f;
    f.toastTime = std::chrono::milliseconds{1};
    AppState &state = f.make();
    const NoticesModel notices(state);
    QVERIFY(!notices.toastShown());
    state.showToast(u"checkmark.circle.fill"_s, 0x22C55E, u"Done"_s);
    QVERIFY(notices.toastShown());
    QCOMPARE(notices.toastSymbol(), u"checkmark.circle.fill"_s);
    QCOMPARE(notices.toastMessage(), u"Done"_s);
    QTRY_VERIFY(!notices.toastShown());
    QCOMPARE(notices.toastMessage(), u"Done"_s); // while it fades away
    QVERIFY(!notices.modalShown());
}

void tst_NoticesModel::takesTheToastsColour()
{
    PageFixture f;
    AppState &state = f.make();
    const NoticesModel notices(state);
    state.showToast(u"xmark"_s, 0xFF0000, u"Red"_s);
    QCOMPARE(notices.toastTint(), 0xFF0000);
    state.showToast(u"xmark"_s, 0xFF0000FF, u"Blue, with more than three bytes"_s);
    QCOMPARE(notices.toastTint(), 0x0000FF);
}

void tst_NoticesModel::showsAndDismissesAnAlert()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    state.raiseAlert(u"Can't"_s, u"No space"_s);
    QVERIFY(notices.alertShown() && notices.modalShown());
    QCOMPARE(notices.alertTitle(), u"Can't"_s);
    QCOMPARE(notices.alertMessage(), u"No space"_s);
    notices.dismissAlert();
    QVERIFY(!notices.alertShown() && !state.alert());
}

void tst_NoticesModel::showsAQuestion()
{
    PageFixture f;
    AppState &state = f.make();
    const NoticesModel notices(state);
    state.askToConfirm(question());
    QVERIFY(notices.confirmShown() && !notices.confirmBusy() && notices.modalShown());
    QCOMPARE(notices.confirmSymbol(), u"trash"_s);
    QCOMPARE(notices.confirmIcon(), QString());
    QCOMPARE(notices.confirmTitle(), u"Remove it?"_s);
    QCOMPARE(notices.confirmMessage(), u"It will be moved."_s);
    QCOMPARE(notices.confirmButton(), u"Remove"_s);
    QCOMPARE(notices.confirmLabels(), (QStringList{u"Total Size"_s, u"Files"_s}));
    QCOMPARE(notices.confirmValues(), (QStringList{u"5 MB"_s, u"3"_s}));
}

void tst_NoticesModel::prefersTheIconToTheSymbol()
{
    PageFixture f;
    AppState &state = f.make();
    const NoticesModel notices(state);
    ConfirmData data = question();
    data.iconImage = FileURL::fromCleanPath("/Applications/Editor.app/icon.png");
    state.askToConfirm(data);
    QCOMPARE(notices.confirmIcon(), AppIconImages::addressOf(*data.iconImage));
}

void tst_NoticesModel::cancelsAQuestion()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    int runs = 0;
    state.askToConfirm(question([&runs] { ++runs; }));
    notices.cancelConfirm();
    QVERIFY(!notices.confirmShown() && !state.confirm() && !notices.modalShown());
    QCOMPARE(runs, 0);
}

void tst_NoticesModel::acceptsAQuestionOnce()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    int runs = 0;
    bool clearedFirst = false;
    state.askToConfirm(question([&] {
        ++runs;
        clearedFirst = !state.confirm().has_value();
    }));
    notices.acceptConfirm();
    QVERIFY(clearedFirst);
    QVERIFY(notices.confirmBusy() && !notices.confirmShown());
    notices.acceptConfirm(); // the second half of a double click
    QCOMPARE(runs, 1);
    QVERIFY(notices.modalShown()); // it is still on the screen
    notices.confirmHasLeft();
    QVERIFY(!notices.confirmBusy() && !notices.modalShown());
}

void tst_NoticesModel::ignoresTheBackdropWhileBusy()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    state.askToConfirm(question());
    notices.acceptConfirm();
    QSignalSpy changed(&notices, &NoticesModel::changed);
    notices.cancelConfirm();
    QVERIFY(notices.confirmBusy());
    QCOMPARE(changed.count(), 0);
}

void tst_NoticesModel::isReadyForTheNextQuestion()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    int runs = 0;
    state.askToConfirm(question());
    notices.acceptConfirm();
    state.askToConfirm(question([&runs] { ++runs; }));
    QVERIFY(notices.confirmShown() && !notices.confirmBusy());
    notices.acceptConfirm();
    QCOMPARE(runs, 1);
}

void tst_NoticesModel::keepsTheTextsOfAQuestionThatLeaves()
{
    PageFixture f;
    AppState &state = f.make();
    NoticesModel notices(state);
    state.askToConfirm(question());
    notices.acceptConfirm();
    QCOMPARE(notices.confirmTitle(), u"Remove it?"_s);
    QCOMPARE(notices.confirmLabels().size(), 2);
}

void tst_NoticesModel::showsAnUpdate()
{
    PageFixture f;
    announce(f, R"("releaseDate":"2026-03-05T10:00:00Z","fileSizeBytes":12400000,)");
    const NoticesModel notices(*f.state);
    QVERIFY(notices.updateShown() && notices.modalShown());
    QCOMPARE(notices.updateVersion(), u"Version 99.1"_s);
    QCOMPARE(notices.updateDate(), u"Mar 5, 2026"_s);
    QCOMPARE(notices.updateSize(), u"12.4 MB"_s);
    QCOMPARE(notices.updateNotes(), u"Better"_s);
}

void tst_NoticesModel::showsNoPillForWhatTheFeedLeavesOut()
{
    PageFixture f;
    announce(f);
    const NoticesModel notices(*f.state);
    QVERIFY(notices.updateShown());
    QCOMPARE(notices.updateDate(), QString());
    QCOMPARE(notices.updateSize(), QString());
}

void tst_NoticesModel::leavesAnUpdateForLater()
{
    PageFixture f;
    announce(f);
    NoticesModel notices(*f.state);
    notices.postponeUpdate();
    QVERIFY(!notices.updateShown() && !f.state->updateInfo());
    QVERIFY(!f.defaults.contains(DefaultsKey::skippedUpdateVersion));
    QVERIFY(f.fakes.workspace->opened.isEmpty());
}

void tst_NoticesModel::skipsAnUpdate()
{
    PageFixture f;
    announce(f);
    NoticesModel notices(*f.state);
    notices.skipUpdate();
    QVERIFY(!notices.updateShown());
    QCOMPARE(f.defaults.text(DefaultsKey::skippedUpdateVersion), u"99.1"_s);
}

void tst_NoticesModel::downloadsAnUpdate()
{
    PageFixture f;
    announce(f);
    NoticesModel notices(*f.state);
    notices.downloadUpdate();
    QVERIFY(!notices.updateShown());
    QCOMPARE(f.fakes.workspace->opened, QList<QUrl>{QUrl(u"https://example.org/b.dmg"_s)});
}

void tst_NoticesModel::translatesAnUpdate()
{
    PageFixture f;
    announce(f);
    const NoticesModel notices(*f.state);
    f.state->setLanguage(AppLanguage::de);
    QCOMPARE(notices.updateNotes(), u"Besser"_s);
    f.state->setLanguage(AppLanguage::en);
    QCOMPARE(notices.updateNotes(), u"Better"_s);
}

QTEST_GUILESS_MAIN(tst_NoticesModel)
#include "tst_NoticesModel.moc"
