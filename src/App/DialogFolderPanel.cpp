// SPDX-License-Identifier: MIT
#include "App/DialogFolderPanel.h"

#include <QCoro/QCoroSignal>
#include <QFile>
#include <QFileDialog>

#include <memory>

namespace {

/// A dialog that takes one folder that is there.
std::unique_ptr<QFileDialog> makeDialog(const std::optional<FileURL> &hint, const QString &message,
                                        const QString &buttonText)
{
    auto dialog = std::make_unique<QFileDialog>(nullptr, message);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, buttonText);
    if (hint)
        dialog->setDirectory(QFile::decodeName(hint->path()));
    return dialog;
}

QCoro::Task<std::optional<FileURL>> ask(std::unique_ptr<QFileDialog> dialog)
{
    dialog->open();
    co_await qCoro(dialog.get(), &QDialog::finished);
    if (dialog->result() != QDialog::Accepted)
        co_return std::nullopt;
    const QStringList chosen = dialog->selectedFiles();
    if (chosen.size() != 1)
        co_return std::nullopt;
    co_return FileURL::fromPath(QFile::encodeName(chosen.constFirst()));
}

} // namespace

QCoro::Task<std::optional<FileURL>> DialogFolderPanel::choose(std::optional<FileURL> hint, QString message,
                                                              QString buttonText)
{
    std::unique_ptr<QFileDialog> dialog = makeDialog(hint, message, buttonText);
    dialog->winId(); // makes the window that can be told whose it is
    dialog->windowHandle()->setTransientParent(m_owner);
    return ask(std::move(dialog));
}
