// SPDX-License-Identifier: MIT
// Folders mounted a second time, in a mount namespace of the test's own. Needs root; registered where that can be had.
#include "Services/DuplicateScanService.h"

#include "Fakes/Bytes.h"
#include "Fakes/ScratchTree.h"

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>

namespace {

class DuplicateMounts : public ::testing::Test
{
public:
    ~DuplicateMounts() override { EXPECT_EQ(::umount2(m_second.path().constData(), MNT_DETACH), 0); }

protected:
    static void SetUpTestSuite()
    {
        ASSERT_EQ(::unshare(CLONE_NEWNS), 0);
        ASSERT_EQ(::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
    }

    QList<QList<QByteArray>> scanWithSecondMount()
    {
        EXPECT_EQ(::mount(m_first.path().constData(), m_second.path().constData(), nullptr, MS_BIND, nullptr), 0);
        QList<QList<QByteArray>> names;
        const auto groups = DuplicateScanService::scanSync({.folders = {m_tree.root()}, .logFolder = {}}, {}, {});
        for (const DuplicateGroup &group : groups) {
            auto &made = names.emplaceBack();
            for (const DuplicateFile &file : group.files)
                made.append(file.url.name());
        }
        return names;
    }

    ScratchTree m_tree;
    FileURL m_first = m_tree.folder("first");
    FileURL m_second = m_tree.folder("second");
};

TEST_F(DuplicateMounts, AFileSeenAtTwoPlacesIsNoCopyOfItself)
{
    m_tree.file("first/a", someBytes(5'000, 1));
    m_tree.file("first/deep/b", someBytes(50'000, 2));
    EXPECT_TRUE(scanWithSecondMount().isEmpty());
}

TEST_F(DuplicateMounts, TrueCopiesAreStillFoundAndListedOnceEach)
{
    m_tree.file("first/a", someBytes(5'000, 1));
    m_tree.file("first/b", someBytes(5'000, 1));
    ASSERT_EQ(::link(m_tree.at("first/a").path().constData(), m_tree.at("first/c").path().constData()), 0);
    EXPECT_EQ(scanWithSecondMount(), (QList<QList<QByteArray>>{{"a", "b", "c"}}));
}

} // namespace
