// SPDX-License-Identifier: MIT
#include "Views/Navigation.h"

#include "Models/TextKey.h"
#include "State/AppState.h"
#include "Support/Text.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    Page page;
    QStringView title;
    QStringView symbol;
};

constexpr std::array kRows = {
    Row{Page::overview, textKey(u"Overview"), u"house"},
    Row{Page::uninstaller, textKey(u"Uninstaller"), u"trash"},
    Row{Page::duplicates, textKey(u"Duplicates"), u"square.stack.3d.up"},
    Row{Page::largeFiles, textKey(u"Large Files"), u"doc.text.magnifyingglass"},
    Row{Page::junk, textKey(u"Junk Cleaner"), u"sparkles"},
    Row{Page::startup, textKey(u"Startup"), u"power"},
    Row{Page::settings, textKey(u"Settings"), u"gearshape"},
};

QList<PageEntry> entries()
{
    QList<PageEntry> made;
    for (const Row &row : kRows)
        made.append({.page = row.page, .title = Text::lookup(row.title), .symbol = row.symbol.toString()});
    return made;
}

} // namespace

QVariant PagesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PageEntry &entry = recordAt(index);
    switch (role) {
    case PageRole:
        return pageOf(entry);
    case TitleRole:
        return entry.title;
    case SymbolRole:
        return entry.symbol;
    default:
        return {};
    }
}

QHash<int, QByteArray> PagesModel::roleNames() const
{
    return {{PageRole, "page"}, {TitleRole, "title"}, {SymbolRole, "symbol"}};
}

Navigation::Navigation(AppState &state, QObject *parent)
    : PageModel(state, parent)
{
    connect(&state, &AppState::selectionChanged, this, &Navigation::refresh);
    connect(&state, &AppState::languageChanged, this, &Navigation::refresh);
    refresh();
}

void Navigation::refresh()
{
    m_pages.setRecords(entries());
    const Page page = state().selection();
    show(m_view, View{.current = static_cast<Target>(page),
                      .title = m_pages.records().at(m_pages.rowOf(std::to_underlying(page))).title,
                      .language = rawValue(state().language())});
}

void Navigation::select(Target page)
{
    if (m_pages.rowOf(page) >= 0)
        state().setSelection(static_cast<Page>(page));
}
