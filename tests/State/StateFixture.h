// SPDX-License-Identifier: MIT
#pragma once

#include "Fakes/FakePlatform.h"
#include "Fakes/ScratchTree.h"
#include "State/AppState.h"
#include "Support/LanguageManager.h"
#include "Support/UserDefaults.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QSemaphore>
#include <QTest>

#include <memory>

/// A state over a fake platform in a scratch home, with everything the outside decides within reach of a test.
class StateFixture
{
public:
    StateFixture()
        : home(tree.folder("home"))
        , trash(tree.folder("trash"))
        , fakes(home, trash)
        , defaults(tree.at("settings/Brisko.conf").text())
    {
        tree.folder("settings");
        tree.folder("home/tmp");
        LanguageManager::apply(AppLanguage::en, defaults);
        fakes.figures->physical = 16'000'000'000;
        fakes.figures->disk = 5'000;
    }
    ~StateFixture()
    {
        state.reset();
        settle();
    }
    Q_DISABLE_COPY_MOVE(StateFixture)

    AppState &make()
    {
        state = std::make_unique<AppState>(environment());
        return *state;
    }
    AppEnvironment environment()
    {
        AppEnvironment made{.platform = fakes.platform, .defaults = &defaults, .panel = &panel, .pools = &pools};
        made.now = [this] { return now; };
        made.appcastURL = appcastURL;
        made.toastTime = toastTime;
        made.statsInterval = statsInterval;
        return made;
    }
    /// Lets all work in flight come to its end.
    void settle()
    {
        for (int round = 0; round < 5; ++round) {
            pools.userInitiated.waitForDone();
            pools.utility.waitForDone();
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    template <typename T>
    static T wait(QCoro::Task<T> task)
    {
        return QCoro::waitFor(std::move(task));
    }
    static void wait(QCoro::Task<> task) { QCoro::waitFor(std::move(task)); }

    /// While it lives no scan begins its work, however quick the machine or slow the test.
    class Held
    {
    public:
        explicit Held(StateFixture &fixture)
            : m_pool(fixture.pools.userInitiated)
            , m_threads(m_pool.maxThreadCount())
        {
            m_pool.setMaxThreadCount(1);
            m_pool.start([this] { m_goOn.acquire(); });
        }
        ~Held()
        {
            m_goOn.release();
            m_pool.setMaxThreadCount(m_threads);
        }
        Q_DISABLE_COPY_MOVE(Held)

    private:
        QThreadPool &m_pool;
        int m_threads;
        QSemaphore m_goOn;
    };

    /// A file that an old-downloads scan finds.
    FileURL oldDownload(const QByteArray &name, qsizetype size) const
    {
        const FileURL file = tree.file("home/Downloads/" + name, QByteArray(size, 'x'));
        ScratchTree::setModified(file, now.addDays(-40));
        return file;
    }

    ScratchTree tree;
    FileURL home;
    FileURL trash;
    FakePlatform fakes;
    UserDefaults defaults;
    FakePanel panel;
    TaskPools pools;
    QDateTime now = QDateTime::currentDateTimeUtc();
    std::function<std::expected<QUrl, QString>()> appcastURL = [] {
        return std::expected<QUrl, QString>(QUrl(QStringLiteral("http://127.0.0.1:1/appcast.json")));
    };
    std::chrono::milliseconds toastTime{3'200};
    std::chrono::milliseconds statsInterval{2'000};
    std::unique_ptr<AppState> state;
};
