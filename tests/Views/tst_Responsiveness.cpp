// SPDX-License-Identifier: MIT
#include "Views/DuplicatesPage.h"
#include "Views/LargeFilesPage.h"
#include "Views/PageFixture.h"
#include "Views/ViewWindow.h"

#include <QElapsedTimer>
#include <QFile>
#include <QQmlExtensionPlugin>
#include <QTest>
#include <QTimer>

Q_IMPORT_QML_PLUGIN(Brisko_ThemePlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PaintedPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_PagesPlugin)
Q_IMPORT_QML_PLUGIN(Brisko_ViewsPlugin)

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// Milliseconds. What developers run interprets its QML and optimises nothing, so it is held to three times what people
// are promised.
#ifdef NDEBUG
constexpr double kLongest = 50;
#else
constexpr double kLongest = 150;
#endif
constexpr int kFiles = 50'000;
constexpr int kRemoved = 20'000;
constexpr int kCopies = 20'000;

/// A timer on the thread that draws: how late it rings at worst is how long the thread was not to be spoken to. What
/// the system gave to other programs meanwhile is not counted, so that a busy machine does not fail a test.
class Watchdog
{
public:
    Watchdog()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.callOnTimeout([this] { look(); });
        m_clock.start();
        m_waited = waitedForProcessor();
        m_timer.start(kInterval);
    }
    /// Milliseconds that the worst ring came late.
    [[nodiscard]] double worst()
    {
        look();
        return m_worst;
    }
    [[nodiscard]] int rings() const { return m_rings; }

private:
    static constexpr auto kInterval = 5ms;

    void look()
    {
        const qint64 waited = waitedForProcessor();
        const qint64 late = m_clock.nsecsElapsed() - (waited - m_waited) - std::chrono::nanoseconds(kInterval).count();
        m_worst = std::max(m_worst, static_cast<double>(late) / 1e6);
        ++m_rings;
        m_waited = waited;
        m_clock.restart();
    }
    /// Nanoseconds that this thread was ready to run and another one had the processor.
    static qint64 waitedForProcessor()
    {
        QFile file(u"/proc/thread-self/schedstat"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() : 0;
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_waited = 0;
    double m_worst = 0;
    int m_rings = 0;
};

/// The page of large files over a home that is full of them.
struct LargeFiles : PageFixture {
    LargeFiles()
    {
        for (int number = 0; number < kFiles; ++number)
            tree.sparseFile("home/Movies/" + QByteArray::number(number / 500) + "/film " + QByteArray::number(number),
                            200'000'000 + number);
        page = std::make_unique<LargeFilesPage>(make(), actions);
        window = std::make_unique<ViewWindow>(u"LargeFilesView.qml"_s, page.get());
    }
    std::unique_ptr<LargeFilesPage> page;
    std::unique_ptr<ViewWindow> window;
};

struct Duplicates : PageFixture {
    Duplicates()
    {
        for (int number = 0; number < kCopies; ++number)
            tree.file("home/Pictures/" + QByteArray::number(number / 500) + "/picture " + QByteArray::number(number),
                      QByteArray(5'000, 'p') + QByteArray::number(number / 2));
        page = std::make_unique<DuplicatesPage>(make(), actions);
        window = std::make_unique<ViewWindow>(u"DuplicatesView.qml"_s, page.get());
    }
    std::unique_ptr<DuplicatesPage> page;
    std::unique_ptr<ViewWindow> window;
};

} // namespace

/// However much there is to find or to remove, the window answers.
class tst_Responsiveness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBlockedThreadIsNoticed()
    {
        Watchdog watchdog;
        QTest::qSleep(static_cast<int>(2 * kLongest));
        QVERIFY(watchdog.worst() > kLongest);
    }

    void largeFilesAreFoundAndRemoved()
    {
        LargeFiles f;
        QVERIFY(f.window->isReady());
        Watchdog scanning;
        StateFixture::wait(f.state->scanLargeFilesAsync());
        QTest::qWait(200); // the rows are made and drawn
        QCOMPARE(f.state->largeFiles().size(), kFiles);
        QVERIFY(scanning.rings() > 10);
        const double scan = scanning.worst();

        QSet<FileURL> selected;
        for (const LargeFile &file : f.state->largeFiles().first(kRemoved))
            selected.insert(file.url);
        Watchdog removing;
        StateFixture::wait(f.state->removeLargeFiles(selected));
        QTest::qWait(200);
        QCOMPARE(f.state->largeFiles().size(), kFiles - kRemoved);
        const double removal = removing.worst();
        qInfo("the scan: %.1f ms, the removal: %.1f ms", scan, removal);
        QVERIFY(scan <= kLongest);
        QVERIFY(removal <= kLongest);
    }

    void duplicatesAreFoundAndRemoved()
    {
        Duplicates f;
        QVERIFY(f.window->isReady());
        Watchdog scanning;
        StateFixture::wait(f.state->scanDuplicates());
        QTest::qWait(200);
        QCOMPARE(f.state->duplicateGroups().size(), kCopies / 2);
        const double scan = scanning.worst();

        const QList<DuplicateGroup> groups = f.state->duplicateGroups();
        QSet<FileURL> selected;
        for (const DuplicateGroup &group : groups)
            selected.insert(group.files.last().url);
        Watchdog removing;
        StateFixture::wait(f.state->removeDuplicates(selected, groups));
        QTest::qWait(200);
        QVERIFY(f.state->duplicateGroups().isEmpty());
        const double removal = removing.worst();
        qInfo("the scan: %.1f ms, the removal: %.1f ms", scan, removal);
        QVERIFY(scan <= kLongest);
        QVERIFY(removal <= kLongest);
    }
};

QTEST_MAIN(tst_Responsiveness)
#include "tst_Responsiveness.moc"
