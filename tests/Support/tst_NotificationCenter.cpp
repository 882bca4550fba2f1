// SPDX-License-Identifier: MIT
#include "Support/NotificationCenter.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class tst_NotificationCenter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNamesAreTheDocumentedOnes()
    {
        QCOMPARE(Notification::openMainWindow, "OpenMainWindow"_L1);
        QCOMPARE(Notification::closeMenuPopover, "CloseMenuPopover"_L1);
    }

    void everyListenerHearsEachNameInOrder()
    {
        NotificationCenter center;
        NotificationCenter other;
        QSignalSpy one(&center, &NotificationCenter::posted);
        QSignalSpy two(&center, &NotificationCenter::posted);
        QSignalSpy elsewhere(&other, &NotificationCenter::posted);
        center.post(Notification::openMainWindow);
        center.post(Notification::closeMenuPopover);
        for (const QSignalSpy *spy : {&one, &two}) {
            QCOMPARE(spy->count(), 2);
            QCOMPARE(spy->at(0).at(0).toString(), u"OpenMainWindow"_s);
            QCOMPARE(spy->at(1).at(0).toString(), u"CloseMenuPopover"_s);
        }
        QCOMPARE(elsewhere.count(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_NotificationCenter)
#include "tst_NotificationCenter.moc"
