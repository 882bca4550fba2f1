// SPDX-License-Identifier: MIT
#include "Fakes/ScratchTree.h"
#include "Platform/Linux/LinuxSystemFigures.h"

#include <gtest/gtest.h>

#include <sys/statvfs.h>

namespace {

class LinuxSystemFiguresTest : public ::testing::Test
{
protected:
    LinuxSystemFiguresTest()
        : figures({.proc = tree.folder("proc"), .sys = tree.folder("sys"), .volume = tree.root()})
    {
    }

    /// A sensor chip; SATA and NVMe disks have one each.
    void chip(const QByteArray &folder, const QByteArray &name, const QByteArray &input, const QByteArray &model = {})
    {
        const QByteArray base = "sys/class/hwmon/" + folder;
        tree.file(base + "/name", name + '\n');
        if (!input.isEmpty())
            tree.file(base + "/temp1_input", input + '\n');
        if (!model.isEmpty())
            tree.file(base + "/device/model", model + "   \n");
    }

    ScratchTree tree;
    LinuxSystemFigures figures;
};

TEST_F(LinuxSystemFiguresTest, readsTicksFromTheFirstLine)
{
    tree.file("proc/stat", "cpu  100 20 30 4000 5 6 7 8 9 10\ncpu0 1 2 3 4 5 6 7 8 9 10\nintr 5\n");
    EXPECT_EQ(figures.processorTicks(),
              (ProcessorTicks{.user = 100, .system = 30 + 6 + 7, .idle = 4000 + 5, .nice = 20}));
}

TEST_F(LinuxSystemFiguresTest, readsTicksOfOldKernelsWithFewerColumns)
{
    tree.file("proc/stat", "cpu 1 2 3 4\n");
    EXPECT_EQ(figures.processorTicks(), (ProcessorTicks{.user = 1, .system = 3, .idle = 4, .nice = 2}));
}

TEST_F(LinuxSystemFiguresTest, readsNoTicksFromWhatIsNoSample)
{
    EXPECT_EQ(figures.processorTicks(), std::nullopt);
    for (const char *bad : {"", "cpu", "cpu \n", "cpu 1 2 3\n", "cpu 1 2 x 4\n", "cpu0 1 2 3 4\n", "cpu -1 2 3 4\n"}) {
        tree.file("proc/stat", bad);
        EXPECT_EQ(figures.processorTicks(), std::nullopt) << bad;
    }
}

TEST_F(LinuxSystemFiguresTest, doesNotHangOnAPipe)
{
    ASSERT_EQ(::mkfifo(tree.at("proc/stat").path().constData(), 0600), 0);
    EXPECT_EQ(figures.processorTicks(), std::nullopt);
}

TEST_F(LinuxSystemFiguresTest, addsUpMemoryInUse)
{
    tree.file("proc/meminfo", "MemTotal:       8000 kB\nActive:         1000 kB\nActive(anon):  1 kB\n"
                              "Inactive:       7 kB\nUnevictable:    20 kB\nZswap:          300 kB\n"
                              "Zswapped:       9999 kB\nSlab:           77 kB\nSUnreclaim:     4 kB\n"
                              "KernelStack:    2 kB\nPageTables:     1 kB\nSecPageTables:  50 kB\n");
    tree.file("sys/block/zram0/mm_stat", "  900000  200000  409600        0  500000  1  0  0  0\n");
    tree.file("sys/block/zram1/mm_stat", "0 0 1024 0 0 0 0 0 0\n");
    tree.folder("sys/block/sda");
    EXPECT_EQ(figures.memoryPages(),
              (MemoryPages{.active = 1000, .wired = 20 + 4 + 2 + 1, .compressed = 300 + 400 + 1, .pageSize = 1024}));
    EXPECT_EQ(figures.physicalMemory(), 8000 * 1024);
}

TEST_F(LinuxSystemFiguresTest, figuresThatThisKernelLacksCountAsNothing)
{
    tree.file("proc/meminfo", "MemTotal: 8000 kB\nActive: 1000 kB\n");
    EXPECT_EQ(figures.memoryPages(), (MemoryPages{.active = 1000, .wired = 0, .compressed = 0, .pageSize = 1024}));
}

TEST_F(LinuxSystemFiguresTest, readsNoMemoryFromWhatIsNoSample)
{
    EXPECT_EQ(figures.memoryPages(), std::nullopt);
    EXPECT_EQ(figures.physicalMemory(), 0);
    tree.file("proc/meminfo", "MemTotal: lots\nActive:\n");
    EXPECT_EQ(figures.memoryPages(), std::nullopt);
    EXPECT_EQ(figures.physicalMemory(), 0);
    tree.file("proc/meminfo", "MemTotal: 18446744073709551615 kB\n");
    EXPECT_EQ(figures.physicalMemory(), 0);
}

TEST_F(LinuxSystemFiguresTest, freeSpaceIsWhatAnOrdinaryUserCanUse)
{
    struct statvfs before {
    };
    struct statvfs after {
    };
    const QByteArray path = tree.root().path();
    // Others write to the same disk: the answer lies between two looks of our own, or we look again.
    for (int attempt = 0; attempt < 100; ++attempt) {
        ASSERT_EQ(::statvfs(path.constData(), &before), 0);
        const std::optional<qint64> found = figures.availableDisk();
        ASSERT_EQ(::statvfs(path.constData(), &after), 0);
        if (before.f_bavail != after.f_bavail)
            continue;
        EXPECT_EQ(found, static_cast<qint64>(before.f_bavail * before.f_frsize));
        return;
    }
    FAIL() << "the disk never came to rest";
}

TEST_F(LinuxSystemFiguresTest, freeSpaceOfAMissingVolumeIsUnknown)
{
    const LinuxSystemFigures other({.proc = tree.root(), .sys = tree.root(), .volume = tree.at("missing")});
    EXPECT_EQ(other.availableDisk(), std::nullopt);
}

TEST_F(LinuxSystemFiguresTest, sensorsCannotBeReadWhereThereIsNoSuchFolder)
{
    EXPECT_FALSE(figures.canReadSensors());
    EXPECT_TRUE(figures.sensors({}).isEmpty());
    tree.folder("sys/class/hwmon");
    EXPECT_TRUE(figures.canReadSensors());
    EXPECT_TRUE(figures.sensors({}).isEmpty());
}

TEST_F(LinuxSystemFiguresTest, presentsDisksAsFlashStorageNvmeFirst)
{
    chip("hwmon0", "coretemp", "40000");
    chip("hwmon1", "drivetemp", "31000", "Spinner 2000");
    chip("hwmon10", "nvme", "52850", "Second Disk");
    chip("hwmon2", "nvme", "41850", "First Disk");
    chip("hwmon3", "nvme", "");
    tree.file("sys/class/hwmon/hwmon2/temp2_input", "70000\n");

    const QList<Sensor> found = figures.sensors({.product = {}, .usagePage = 0xFF00, .usage = 5});
    QStringList products;
    for (const Sensor &each : found)
        products.append(each.product);
    EXPECT_EQ(products, (QStringList{QStringLiteral("NAND First Disk"), QStringLiteral("NAND Second Disk"),
                                     QStringLiteral("NAND Spinner 2000")}));
    EXPECT_EQ(figures.temperature(found.at(0)), 41.85);
    EXPECT_EQ(figures.temperature(found.at(2)), 31.0);
}

TEST_F(LinuxSystemFiguresTest, findsChipsBehindLinksAsTheKernelHasThem)
{
    chip("hwmon0/../../../devices/hwmon0", "nvme", "30000");
    tree.folder("sys/class/hwmon");
    tree.link("sys/class/hwmon/hwmon0", "../../devices/hwmon0");
    const QList<Sensor> found = figures.sensors({});
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().product, QStringLiteral("NAND nvme"));
    EXPECT_EQ(figures.temperature(found.first()), 30.0);
}

TEST_F(LinuxSystemFiguresTest, answersOnlyTheSensorsAskedFor)
{
    chip("hwmon0", "nvme", "30000");
    EXPECT_EQ(figures.sensors({.product = QStringLiteral("NAND nvme"), .usagePage = 0, .usage = 0}).size(), 1);
    EXPECT_TRUE(figures.sensors({.product = QStringLiteral("NAND CH0 temp"), .usagePage = 0, .usage = 0}).isEmpty());
    EXPECT_TRUE(figures.sensors({.product = {}, .usagePage = 1, .usage = 5}).isEmpty());
}

TEST_F(LinuxSystemFiguresTest, aReadingThatIsNoNumberOrGoneIsAbsent)
{
    chip("hwmon0", "nvme", "warm");
    const QList<Sensor> found = figures.sensors({});
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(figures.temperature(found.first()), std::nullopt);
    ASSERT_EQ(::unlink(tree.at("sys/class/hwmon/hwmon0/temp1_input").path().constData()), 0);
    EXPECT_EQ(figures.temperature(found.first()), std::nullopt);
    EXPECT_EQ(figures.temperature({}), std::nullopt);
}

TEST(LinuxSystemFiguresHere, readsThisMachine)
{
    const LinuxSystemFigures figures;
    const auto first = figures.processorTicks();
    ASSERT_TRUE(first);
    EXPECT_GT(first->user + first->system + first->idle, 0U);
    const auto pages = figures.memoryPages();
    ASSERT_TRUE(pages);
    EXPECT_GT(pages->active, 0U);
    EXPECT_GT(figures.physicalMemory(), 0);
    EXPECT_GE(figures.availableDisk().value_or(-1), 0);
}

} // namespace
