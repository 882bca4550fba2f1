// SPDX-License-Identifier: MIT
#include "Views/RecordListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <random>

/// Rows that keep their identity, asked with lists that a seed decides.
class tst_RecordListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsAnyListAfterAnyOther_data();
    void showsAnyListAfterAnyOther();
    void resetsOnlyWhenNothingIsShared();
    void insertsInOnePiece();
    void tellsOnlyTheRowsThatChanged();
    void saysNothingWhenNothingChanged();
    void touchesByKey();
};

namespace {

struct Item {
    int key = 0;
    int value = 0;
    friend bool operator==(const Item &, const Item &) = default;
};

int keyOf(const Item &item)
{
    return item.key;
}

class Items : public RecordListModel<Item, keyOf>
{
public:
    enum Role { KeyRole = Qt::UserRole + 1, ValueRole };

    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (!checkIndex(index, CheckIndexOption::IndexIsValid))
            return {};
        if (role == KeyRole)
            return recordAt(index).key;
        return role == ValueRole ? QVariant(recordAt(index).value) : QVariant();
    }
};

/// What a view knows: the list as it follows from the model's signals alone.
class Follower
{
public:
    explicit Follower(Items &model)
        : m_model(model)
    {
        QObject::connect(&model, &QAbstractItemModel::modelReset, &m_context, [this] { m_items = m_model.records(); });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &m_context,
                         [this](const QModelIndex &, int first, int last) { m_items.remove(first, last - first + 1); });
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &m_context,
                         [this](const QModelIndex &, int first, int last) {
                             for (int row = first; row <= last; ++row)
                                 m_items.insert(row, read(row));
                         });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &m_context,
                         [this](const QModelIndex &first, const QModelIndex &last) {
                             for (int row = first.row(); row <= last.row(); ++row)
                                 m_items[row] = read(row);
                         });
        QObject::connect(&model, &QAbstractItemModel::layoutChanged, &m_context, [this] {
            m_items.clear();
            for (int row = 0; row < m_model.rowCount(); ++row)
                m_items.append(read(row));
        });
    }
    [[nodiscard]] const QList<Item> &items() const { return m_items; }

private:
    [[nodiscard]] Item read(int row) const
    {
        return {.key = m_model.data(m_model.index(row), Items::KeyRole).toInt(),
                .value = m_model.data(m_model.index(row), Items::ValueRole).toInt()};
    }
    Items &m_model;
    QObject m_context;
    QList<Item> m_items;
};

/// Some of the keys below `keys`, each once, in some order.
QList<Item> randomItems(std::mt19937 &random, int keys)
{
    QList<Item> items;
    for (int key = 0; key < keys; ++key) {
        if (random() % 3 != 0)
            items.append({.key = key, .value = static_cast<int>(random() % 3)});
    }
    if (random() % 2 == 0)
        std::ranges::shuffle(items, random);
    return items;
}

} // namespace

void tst_RecordListModel::showsAnyListAfterAnyOther_data()
{
    QTest::addColumn<int>("keys");
    QTest::newRow("tiny") << 2;
    QTest::newRow("small") << 5;
    QTest::newRow("middling") << 20;
    QTest::newRow("long") << 200;
}

void tst_RecordListModel::showsAnyListAfterAnyOther()
{
    QFETCH(const int, keys);
    std::mt19937 random(static_cast<unsigned>(keys));
    Items model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    const Follower follower(model);
    for (int round = 0; round < 100; ++round) {
        const QList<Item> before = model.records();
        QList<QPersistentModelIndex> held;
        for (int row = 0; row < model.rowCount(); ++row)
            held.append(model.index(row));

        const QList<Item> wanted = randomItems(random, keys);
        model.setRecords(wanted);

        QCOMPARE(model.records(), wanted);
        QCOMPARE(follower.items(), wanted);
        for (int row = 0; row < wanted.size(); ++row)
            QCOMPARE(model.rowOf(wanted.at(row).key), row);
        QCOMPARE(model.rowOf(keys), -1);
        for (int row = 0; row < before.size(); ++row) {
            const auto now = std::ranges::find(wanted, before.at(row).key, &Item::key);
            const int expected = now == wanted.cend() ? -1 : static_cast<int>(now - wanted.cbegin());
            QCOMPARE(held.at(row).row(), expected);
        }
    }
}

void tst_RecordListModel::resetsOnlyWhenNothingIsShared()
{
    Items model;
    model.setRecords({{.key = 1}, {.key = 2}});
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setRecords({{.key = 3}, {.key = 2}, {.key = 4}});
    QCOMPARE(resets.count(), 0);
    model.setRecords({{.key = 5}});
    QCOMPARE(resets.count(), 1);
}

void tst_RecordListModel::insertsInOnePiece()
{
    Items model;
    model.setRecords({{.key = 1}, {.key = 9}});
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    model.setRecords({{.key = 1}, {.key = 2}, {.key = 3}, {.key = 4}, {.key = 9}});
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted.first().at(1).toInt(), 1);
    QCOMPARE(inserted.first().at(2).toInt(), 3);
    model.setRecords({{.key = 1}, {.key = 9}});
    QCOMPARE(removed.count(), 1);
}

void tst_RecordListModel::tellsOnlyTheRowsThatChanged()
{
    Items model;
    model.setRecords({{.key = 1}, {.key = 2}, {.key = 3}, {.key = 4}});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setRecords({{.key = 1, .value = 5}, {.key = 2}, {.key = 3, .value = 5}, {.key = 4, .value = 5}});
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 0);
    QCOMPARE(changed.at(0).at(1).toModelIndex().row(), 0);
    QCOMPARE(changed.at(1).at(0).toModelIndex().row(), 2);
    QCOMPARE(changed.at(1).at(1).toModelIndex().row(), 3);
}

void tst_RecordListModel::saysNothingWhenNothingChanged()
{
    Items model;
    model.setRecords({{.key = 1}, {.key = 2}});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setRecords({{.key = 1}, {.key = 2}});
    Items empty;
    QSignalSpy emptyResets(&empty, &QAbstractItemModel::modelReset);
    empty.setRecords({});
    QCOMPARE(changed.count() + layout.count() + inserted.count() + resets.count() + emptyResets.count(), 0);
}

void tst_RecordListModel::touchesByKey()
{
    Items model;
    model.setRecords({{.key = 7}, {.key = 8}});
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.touch(6);
    QCOMPARE(changed.count(), 0);
    model.touch(8, {Items::ValueRole});
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.first().at(2).value<QList<int>>(), QList<int>{Items::ValueRole});
}

QTEST_GUILESS_MAIN(tst_RecordListModel)
#include "tst_RecordListModel.moc"
