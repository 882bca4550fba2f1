// SPDX-License-Identifier: MIT
#include "Views/PageModels.h"

#include "Support/NotificationCenter.h"
#include "Views/PageFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_PanelModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensThePageThenTheWindowThenClosesThePanel();
    void keepsTheSelectedPageWhenItOpensTheWindow();
    void closesThePanelBeforeItQuits();
    void showsTheFiguresOfTheOverview();
    void handsOutEveryModel();
};

namespace {

/// The models of a program, and what they posted in order, each with the page selected at that moment.
class Panel
{
public:
    Panel()
        : state(f.make())
    {
        QObject::connect(&notifications, &NotificationCenter::posted, &notifications, [this](const QString &name) {
            log.append(name + u' ' + QString::number(int(state.selection())));
        });
    }

    PageFixture f;
    AppState &state;
    NotificationCenter notifications;
    QStringList log;
    PageModels models{state,
                      notifications,
                      {.copyText = [this](const QString &text) { f.copied.append(text); },
                       .terminate = [this] { log.append(u"quit"_s); }}};
};

} // namespace

void tst_PanelModel::opensThePageThenTheWindowThenClosesThePanel()
{
    Panel panel;
    panel.models.panel()->openPage(Navigation::Junk);
    QCOMPARE(panel.log, (QStringList{u"OpenMainWindow 4"_s, u"CloseMenuPopover 4"_s}));
    QCOMPARE(panel.state.selection(), Page::junk);
    panel.models.panel()->openPage(Navigation::LargeFiles);
    QCOMPARE(panel.state.selection(), Page::largeFiles);
}

void tst_PanelModel::keepsTheSelectedPageWhenItOpensTheWindow()
{
    Panel panel;
    panel.state.setSelection(Page::duplicates);
    panel.models.panel()->openWindow();
    QCOMPARE(panel.log, (QStringList{u"OpenMainWindow 2"_s, u"CloseMenuPopover 2"_s}));
}

void tst_PanelModel::closesThePanelBeforeItQuits()
{
    Panel panel;
    panel.models.panel()->quit();
    QCOMPARE(panel.log, (QStringList{u"CloseMenuPopover 0"_s, u"quit"_s}));
}

void tst_PanelModel::showsTheFiguresOfTheOverview()
{
    Panel panel;
    QCOMPARE(panel.models.panel()->figures(), panel.models.overview()->figures());
    QCOMPARE(panel.models.panel()->figures()->temperature(), u"--"_s);
    QCOMPARE(panel.models.panel()->figures()->temperatureProgress(), 0.0);
}

void tst_PanelModel::handsOutEveryModel()
{
    Panel panel;
    const QMetaObject *meta = panel.models.metaObject();
    QSet<QObject *> made;
    for (int number = meta->propertyOffset(); number < meta->propertyCount(); ++number)
        made.insert(meta->property(number).read(&panel.models).value<QObject *>());
    QVERIFY(!made.contains(nullptr));
    QCOMPARE(made.size(), meta->propertyCount() - meta->propertyOffset());
}

QTEST_GUILESS_MAIN(tst_PanelModel)
#include "tst_PanelModel.moc"
