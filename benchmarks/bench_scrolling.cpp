// SPDX-License-Identifier: MIT
// bench_scrolling large-files|duplicates FOLDER: shows what a scan of the folder finds in the page as people see it,
// scrolls through it, and says in one JSON object what a frame took, in milliseconds. A frame is all that happens from
// the movement to the picture: rows that come into sight are made, laid out and drawn, one after the other.

#include "App/QmlModules.h"
#include "Platform/Platform.h"
#include "State/AppState.h"
#include "Support/LanguageManager.h"
#include "Support/NotificationCenter.h"
#include "Support/UserDefaults.h"
#include "Theme/Theme.h"
#include "Views/PageModels.h"

#include <QCoro/QCoroTask>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Frame {
    double processor = 0; // of all threads
    double wall = 0;
};

double processorMilliseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Waits for the next picture; false when none comes.
bool waitForFrame(QQuickWindow &window)
{
    QEventLoop loop;
    QObject::connect(&window, &QQuickWindow::frameSwapped, &loop, [&loop] { loop.exit(0); });
    QTimer::singleShot(10s, &loop, [&loop] { loop.exit(1); });
    window.update();
    return loop.exec() == 0;
}

class Scroller
{
public:
    Scroller(QQuickWindow &window, QQuickItem &list)
        : m_window(window)
        , m_list(list)
    {
    }
    bool moveTo(double place)
    {
        const double begin = m_list.property("originY").toDouble();
        const double room = m_list.property("contentHeight").toDouble() - m_list.height();
        QElapsedTimer wall;
        wall.start();
        const double before = processorMilliseconds();
        m_list.setProperty("contentY", begin + std::clamp(place, 0.0, std::max(room, 0.0)));
        if (!waitForFrame(m_window))
            return false;
        frames.push_back({processorMilliseconds() - before, static_cast<double>(wall.nsecsElapsed()) / 1e6});
        return true;
    }
    [[nodiscard]] double length() const { return m_list.property("contentHeight").toDouble(); }

    std::vector<Frame> frames;

private:
    QQuickWindow &m_window;
    QQuickItem &m_list;
};

/// A wheel that is turned, a finger that throws the list, and the scroll bar dragged to and fro.
bool scroll(Scroller &scroller)
{
    double place = 0;
    for (int step = 0; step < 300; ++step)
        if (!scroller.moveTo(place += 120))
            return false;
    for (int step = 0; step < 200; ++step)
        if (!scroller.moveTo(place += 1'500))
            return false;
    constexpr double kGolden = 0.618'033'988'75; // never near where it was
    for (int step = 0; step < 200; ++step)
        if (!scroller.moveTo(std::fmod(step * kGolden, 1.0) * scroller.length()))
            return false;
    return true;
}

void report(int rows, std::vector<Frame> &frames)
{
    const auto in = [&frames](double Frame::*figure, double part) {
        std::ranges::sort(frames, {}, figure);
        return frames.at(static_cast<size_t>(part * static_cast<double>(frames.size() - 1))).*figure;
    };
    std::printf(R"({"rows":%d,"frames":%zu,"median":%.2f,"worst":%.2f,"medianWall":%.2f,"worstWall":%.2f})"
                "\n",
                rows, frames.size(), in(&Frame::processor, 0.5), in(&Frame::processor, 1), in(&Frame::wall, 0.5),
                in(&Frame::wall, 1));
}

int fail(const char *why)
{
    std::fprintf(stderr, "bench_scrolling: %s\n", why);
    return 1;
}

int run(bool duplicates, const FileURL &folder)
{
    const QTemporaryDir settings;
    UserDefaults defaults(settings.filePath(u"Brisko.conf"_s));
    LanguageManager::apply(AppLanguage::en, defaults);
    TaskPools pools;
    AppState state({.platform = makePlatform(), .defaults = &defaults, .panel = nullptr, .pools = &pools});
    NotificationCenter notifications;
    PageModels pages(state, notifications, {.copyText = [](const QString &) {}, .terminate = [] {}});
    if (duplicates)
        QCoro::waitFor(state.scanDuplicates({folder}));
    else
        QCoro::waitFor(state.scanLargeFilesAsync(QList<FileURL>{folder}, 1));

    QQmlEngine engine;
    QmlModules::prepare(engine).theme->setReducedMotion(true);
    QQuickView view(&engine, nullptr);
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QObject *page = duplicates ? static_cast<QObject *>(pages.duplicates()) : pages.largeFiles();
    view.setInitialProperties({{u"page"_s, QVariant::fromValue(page)}});
    view.setSource(QUrl(duplicates ? u"qrc:/qt/qml/Brisko/Views/DuplicatesView.qml"_s
                                   : u"qrc:/qt/qml/Brisko/Views/LargeFilesView.qml"_s));
    if (view.status() != QQuickView::Ready)
        return fail("the page cannot be drawn");
    view.resize(756, 652);
    view.show();
    auto *list = view.rootObject()->findChild<QQuickItem *>(duplicates ? u"duplicates"_s : u"largeFiles"_s);
    if (!list || !waitForFrame(view))
        return fail("the page is not drawn");
    Scroller scroller(view, *list);
    if (!scroll(scroller))
        return fail("no more frames are drawn");
    report(list->property("count").toInt(), scroller.frames);
    return 0;
}

} // namespace

int main(int count, char **values)
{
    qputenv("QSG_RENDER_LOOP", "basic"); // all of a frame on one thread, and in one stretch
    const QGuiApplication application(count, values);
    const std::optional<FileURL> folder = count == 3 ? FileURL::fromPath(values[2]) : std::nullopt;
    const QByteArray what = count == 3 ? values[1] : "";
    if (!folder || (what != "large-files" && what != "duplicates")) {
        std::fputs("usage: bench_scrolling large-files|duplicates FOLDER (an absolute path)\n", stderr);
        return 2;
    }
    return run(what == "duplicates", *folder);
}
