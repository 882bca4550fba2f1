// SPDX-License-Identifier: MIT
#include "App/DialogFolderPanel.h"
#include "Fakes/ScratchTree.h"
#include "Support/Tasks.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Answer {
    bool isThere = false;
    std::optional<FileURL> folder;
};

QCoro::Task<> wait(QCoro::Task<std::optional<FileURL>> choosing, Answer *answer)
{
    answer->folder = co_await choosing;
    answer->isThere = true;
}

QFileDialog *shownDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *dialog = qobject_cast<QFileDialog *>(widget); dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace

class tst_DialogFolderPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksForOneFolderWithTheGivenWords()
    {
        Answer answer;
        detach(wait(m_panel.choose(m_tree.folder("start"), u"Choose a folder to scan"_s, u"Add"_s), &answer));
        QFileDialog *dialog = shownDialog();
        QVERIFY(dialog);
        QVERIFY(!answer.isThere); // nothing waited
        QCOMPARE(dialog->windowTitle(), u"Choose a folder to scan"_s);
        QCOMPARE(dialog->labelText(QFileDialog::Accept), u"Add"_s);
        QCOMPARE(dialog->fileMode(), QFileDialog::Directory);
        QVERIFY(dialog->testOption(QFileDialog::ShowDirsOnly));
        QCOMPARE(dialog->directory().path(), m_tree.at("start").text());
        dialog->reject();
        QTRY_VERIFY(answer.isThere);
        QVERIFY(!answer.folder);
    }

    void answersTheChosenFolder()
    {
        const FileURL chosen = m_tree.folder("start/a b");
        Answer answer;
        detach(wait(m_panel.choose(m_tree.at("start"), u"Choose"_s, u"Add"_s), &answer));
        QFileDialog *dialog = shownDialog();
        QVERIFY(dialog);
        dialog->selectFile(chosen.text());
        static_cast<QDialog *>(dialog)->accept();
        QTRY_VERIFY(answer.isThere);
        QCOMPARE(answer.folder, chosen);
        QTRY_VERIFY(!shownDialog());
    }

    void belongsToTheWindowItWasGiven()
    {
        QWindow owner;
        m_panel.setOwner(&owner);
        Answer answer;
        detach(wait(m_panel.choose(std::nullopt, u"Choose"_s, u"Add"_s), &answer));
        QFileDialog *dialog = shownDialog();
        QVERIFY(dialog);
        QCOMPARE(dialog->windowHandle()->transientParent(), &owner);
        dialog->reject();
        QTRY_VERIFY(answer.isThere);
    }

private:
    ScratchTree m_tree;
    DialogFolderPanel m_panel;
};

QTEST_MAIN(tst_DialogFolderPanel)
#include "tst_DialogFolderPanel.moc"
