// SPDX-License-Identifier: MIT
#pragma once

#include "State/StateFixture.h"
#include "Views/ItemActions.h"
#include "Views/ItemId.h"

#include <QAbstractItemModel>

/// A state fixture with what the context menus of pages do kept for the test: `copied`, and the fake workspace.
class PageFixture : public StateFixture
{
public:
    PageFixture()
        : actions(fakes.platform, [this](const QString &text) { copied.append(text); })
    {
    }

    /// An application bundle of one file.
    FileURL app(const QByteArray &name, qsizetype size = 5'000) const
    {
        tree.file("home/Applications/" + name + ".app/Contents/program", QByteArray(size, 'p'));
        return home.appending("Applications/" + name + ".app");
    }
    /// The property list of a startup item, with no keys set.
    FileURL startupItem(const FileURL &file) const
    {
        tree.file(file.path().sliced(tree.root().path().size() + 1), "plist");
        fakes.propertyList->tables.insert(file, {});
        return file;
    }

    QStringList copied;
    ItemActions actions;
};

/// Reads a model's rows as QML does: by the names of its roles.
class Rows
{
public:
    explicit Rows(const QAbstractItemModel *model)
        : m_model(model)
    {
    }
    [[nodiscard]] int count() const { return m_model->rowCount(); }
    [[nodiscard]] QVariant value(int row, const char *role) const
    {
        return m_model->data(m_model->index(row, 0), m_model->roleNames().key(role, -1));
    }
    [[nodiscard]] QString text(int row, const char *role) const { return value(row, role).toString(); }
    [[nodiscard]] bool flag(int row, const char *role) const { return value(row, role).toBool(); }
    [[nodiscard]] QStringList texts(int row, const char *role) const { return value(row, role).toStringList(); }
    [[nodiscard]] QStringList column(const char *role) const
    {
        QStringList texts;
        for (int row = 0; row < count(); ++row)
            texts.append(text(row, role));
        return texts;
    }
    /// The row whose `role` is `wanted`; -1 when none is.
    [[nodiscard]] int find(const char *role, const QString &wanted) const
    {
        return static_cast<int>(column(role).indexOf(wanted));
    }
    /// The item's name in QML of the row whose `name` is `wanted`.
    [[nodiscard]] QString itemId(const QString &wanted) const { return text(find("name", wanted), "itemId"); }

private:
    const QAbstractItemModel *m_model;
};
