// SPDX-License-Identifier: MIT
#include "Theme/Symbols.h"

#include <QFontDatabase>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QLatin1StringView name;
    QLatin1StringView ligature; // empty: drawn by us
};

constexpr QLatin1StringView kDrawn{""};

// In the order of their names. Most ligatures are the name with its dots as underscores; the others are the nearest
// that the font has.
constexpr std::array kTable = {
    Row{QLatin1StringView("app.badge"), QLatin1StringView("app_badge")},
    Row{QLatin1StringView("app.dashed"), kDrawn},
    Row{QLatin1StringView("app.fill"), QLatin1StringView("app_fill")},
    Row{QLatin1StringView("archivebox"), QLatin1StringView("archivebox")},
    Row{QLatin1StringView("arrow.clockwise"), QLatin1StringView("arrow_clockwise")},
    Row{QLatin1StringView("arrow.down"), QLatin1StringView("arrow_down")},
    Row{QLatin1StringView("arrow.down.app.fill"), QLatin1StringView("arrow_down_square_fill")},
    Row{QLatin1StringView("arrow.down.circle"), QLatin1StringView("arrow_down_circle")},
    Row{QLatin1StringView("arrow.down.doc"), QLatin1StringView("arrow_down_doc")},
    Row{QLatin1StringView("arrow.triangle.2.circlepath"), QLatin1StringView("arrow_2_circlepath")},
    Row{QLatin1StringView("arrow.up"), QLatin1StringView("arrow_up")},
    Row{QLatin1StringView("bubbles.and.sparkles.fill"), kDrawn},
    Row{QLatin1StringView("calendar"), QLatin1StringView("calendar")},
    Row{QLatin1StringView("checkmark"), QLatin1StringView("checkmark_alt")},
    Row{QLatin1StringView("checkmark.circle.fill"), QLatin1StringView("checkmark_circle_fill")},
    Row{QLatin1StringView("checkmark.seal.fill"), QLatin1StringView("checkmark_seal_fill")},
    Row{QLatin1StringView("chevron.right"), QLatin1StringView("chevron_right")},
    Row{QLatin1StringView("chevron.up.chevron.down"), QLatin1StringView("chevron_up_chevron_down")},
    Row{QLatin1StringView("circle.lefthalf.filled"), QLatin1StringView("circle_lefthalf_fill")},
    Row{QLatin1StringView("clock.arrow.circlepath"), QLatin1StringView("clock")},
    Row{QLatin1StringView("doc.fill"), QLatin1StringView("doc_fill")},
    Row{QLatin1StringView("doc.on.clipboard"), QLatin1StringView("doc_on_clipboard")},
    Row{QLatin1StringView("doc.on.doc.fill"), QLatin1StringView("doc_on_doc_fill")},
    Row{QLatin1StringView("doc.plaintext"), QLatin1StringView("doc_plaintext")},
    Row{QLatin1StringView("doc.text"), QLatin1StringView("doc_text")},
    Row{QLatin1StringView("doc.text.magnifyingglass"), QLatin1StringView("doc_text_search")},
    Row{QLatin1StringView("envelope"), QLatin1StringView("envelope")},
    Row{QLatin1StringView("exclamationmark.triangle.fill"), QLatin1StringView("exclamationmark_triangle_fill")},
    Row{QLatin1StringView("folder"), QLatin1StringView("folder")},
    Row{QLatin1StringView("folder.badge.gearshape"), QLatin1StringView("folder")},
    Row{QLatin1StringView("folder.fill"), QLatin1StringView("folder_fill")},
    Row{QLatin1StringView("gear"), QLatin1StringView("gear")},
    Row{QLatin1StringView("gearshape"), QLatin1StringView("gear_alt")},
    Row{QLatin1StringView("globe"), QLatin1StringView("globe")},
    Row{QLatin1StringView("hand.raised.circle"), QLatin1StringView("hand_raised")},
    Row{QLatin1StringView("house"), QLatin1StringView("house")},
    Row{QLatin1StringView("info.circle"), QLatin1StringView("info_circle")},
    Row{QLatin1StringView("ladybug"), QLatin1StringView("ant")},
    Row{QLatin1StringView("line.3.horizontal"), QLatin1StringView("line_horizontal_3")},
    Row{QLatin1StringView("lock.fill"), QLatin1StringView("lock_fill")},
    Row{QLatin1StringView("lock.shield.fill"), QLatin1StringView("lock_shield_fill")},
    Row{QLatin1StringView("macwindow"), QLatin1StringView("macwindow")},
    Row{QLatin1StringView("magnifyingglass"), QLatin1StringView("search")},
    Row{QLatin1StringView("message"), QLatin1StringView("bubble_left")},
    Row{QLatin1StringView("minus"), QLatin1StringView("minus")},
    Row{QLatin1StringView("pause.circle.fill"), QLatin1StringView("pause_circle_fill")},
    Row{QLatin1StringView("plus"), QLatin1StringView("plus")},
    Row{QLatin1StringView("power"), QLatin1StringView("power")},
    Row{QLatin1StringView("power.circle"), kDrawn},
    Row{QLatin1StringView("shippingbox"), QLatin1StringView("shippingbox")},
    Row{QLatin1StringView("slider.horizontal.3"), QLatin1StringView("slider_horizontal_3")},
    Row{QLatin1StringView("sparkles"), QLatin1StringView("sparkles")},
    Row{QLatin1StringView("square.stack.3d.up"), QLatin1StringView("square_stack_3d_up")},
    Row{QLatin1StringView("square.stack.3d.up.slash"), QLatin1StringView("square_stack_3d_up_slash")},
    Row{QLatin1StringView("stop.fill"), QLatin1StringView("stop_fill")},
    Row{QLatin1StringView("trash"), QLatin1StringView("trash")},
    Row{QLatin1StringView("wifi.exclamationmark"), QLatin1StringView("wifi_exclamationmark")},
    Row{QLatin1StringView("xmark"), QLatin1StringView("xmark")},
};

const Row *find(QStringView name)
{
    const auto row = std::ranges::find_if(kTable, [name](const Row &candidate) { return name == candidate.name; });
    return row == kTable.end() ? nullptr : &*row;
}

} // namespace

Symbols::Symbols(QObject *parent)
    : QObject(parent)
{
    const int font = QFontDatabase::addApplicationFont(u":/symbols/symbols.ttf"_s);
    m_family = QFontDatabase::applicationFontFamilies(font).value(0);
}

QString Symbols::ligature(const QString &name)
{
    const Row *row = find(name);
    return row ? QString(row->ligature) : QString();
}

bool Symbols::isKnown(QStringView name)
{
    return find(name) != nullptr;
}

QStringList Symbols::names()
{
    QStringList names;
    for (const Row &row : kTable)
        names.append(row.name);
    return names;
}
