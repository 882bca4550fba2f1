// SPDX-License-Identifier: MIT
#include "Fakes/ScratchTree.h"
#include "Platform/Linux/LinuxWorkspace.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

struct Started {
    QString program;
    QStringList arguments;
};

class WorkspaceTest : public ::testing::Test
{
protected:
    WorkspaceTest()
        : workspace([this](const QString &program, const QStringList &arguments) {
            started.append({program, arguments});
            return canStart;
        })
    {
    }

    FileURL bundle(const QByteArray &entries) const
    {
        tree.file("Demo.app/Contents/Info.plist",
                  "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
        return tree.at("Demo.app");
    }

    ScratchTree tree;
    QList<Started> started;
    bool canStart = true;
    LinuxWorkspace workspace;
};

TEST_F(WorkspaceTest, handsWebAndMailAddressesToTheDesktop)
{
    EXPECT_TRUE(workspace.open(QUrl(u"https://example.org/a b?c=ü"_s)));
    EXPECT_TRUE(workspace.open(QUrl(u"mailto:me@example.org"_s)));
    ASSERT_EQ(started.size(), 2);
    EXPECT_EQ(started.at(0).program, u"xdg-open"_s);
    EXPECT_EQ(started.at(0).arguments, QStringList{u"https://example.org/a%20b?c=%C3%BC"_s});
    EXPECT_EQ(started.at(1).arguments, QStringList{u"mailto:me@example.org"_s});
}

TEST_F(WorkspaceTest, refusesEveryOtherAddress)
{
    for (const QString &bad :
         {u""_s, u"http://example.org"_s, u"file:///etc/passwd"_s, u"/etc/passwd"_s, u"ftp://example.org"_s,
          u"https:"_s, u"https:///path"_s, u"mailto:"_s, u"javascript:alert(1)"_s, u"-https://example.org"_s,
          u"example.org"_s,
          u"x-apple.systempreferences:com.apple.settings.PrivacySecurity.extension?Privacy_AllFiles"_s})
        EXPECT_FALSE(workspace.open(QUrl(bad))) << bad.toStdString();
    EXPECT_TRUE(started.isEmpty());
}

TEST_F(WorkspaceTest, saysWhenTheOpenerCouldNotBeStarted)
{
    canStart = false;
    EXPECT_FALSE(workspace.open(QUrl(u"https://example.org"_s)));
    EXPECT_FALSE(LinuxWorkspace::startDetached(u"/no/such/program"_s, {}));
}

TEST_F(WorkspaceTest, startsTheOpenerOnItsOwn)
{
    const FileURL pipe = tree.at("pipe");
    ASSERT_EQ(::mkfifo(pipe.path().constData(), 0600), 0);
    EXPECT_TRUE(LinuxWorkspace::startDetached(
        u"/bin/sh"_s, {u"-c"_s, u"echo noise; echo started > \"$1\""_s, u"sh"_s, QString::fromUtf8(pipe.path())}));
    // Opening the pipe waits until the started program writes into it.
    EXPECT_EQ(ScratchTree::content(pipe), "started\n");
}

TEST_F(WorkspaceTest, displayNameIsTheFileNameWithoutItsEnding)
{
    EXPECT_EQ(workspace.displayName(tree.at("Demo App.app")), u"Demo App"_s);
    EXPECT_EQ(workspace.displayName(tree.at("Demo.APP")), u"Demo.APP"_s);
    EXPECT_EQ(workspace.displayName(tree.at("A.app.app")), u"A.app"_s);
    EXPECT_EQ(workspace.displayName(tree.at(".app")), u".app"_s);
}

TEST_F(WorkspaceTest, readsWhatTheBundleDeclares)
{
    tree.file("Demo.app/Contents/Resources/Demo.icns");
    const BundleInfo info = workspace.bundleInfo(bundle("<key>CFBundleIdentifier</key><string>org.demo</string>"
                                                        "<key>CFBundleShortVersionString</key><string>1.2</string>"
                                                        "<key>CFBundleIconFile</key><string>Demo</string>"));
    EXPECT_EQ(info.identifier, u"org.demo"_s);
    EXPECT_EQ(info.version, u"1.2"_s);
    EXPECT_EQ(info.icon, tree.at("Demo.app/Contents/Resources/Demo.icns"));
}

TEST_F(WorkspaceTest, leavesOutWhatIsNoText)
{
    const BundleInfo info = workspace.bundleInfo(bundle("<key>CFBundleIdentifier</key><integer>1</integer>"
                                                        "<key>CFBundleShortVersionString</key><real>1.2</real>"
                                                        "<key>CFBundleIconFile</key><array/>"));
    EXPECT_EQ(info.identifier, std::nullopt);
    EXPECT_EQ(info.version, std::nullopt);
    EXPECT_EQ(info.icon, std::nullopt);
}

TEST_F(WorkspaceTest, aBundleThatCannotBeOpenedDeclaresNothing)
{
    EXPECT_EQ(workspace.bundleInfo(tree.at("Missing.app")).identifier, std::nullopt);
    EXPECT_EQ(workspace.bundleInfo(tree.file("File.app")).identifier, std::nullopt);
    tree.folder("Pipe.app/Contents");
    ASSERT_EQ(::mkfifo(tree.at("Pipe.app/Contents/Info.plist").path().constData(), 0600), 0);
    EXPECT_EQ(workspace.bundleInfo(tree.at("Pipe.app")).identifier, std::nullopt);
}

TEST_F(WorkspaceTest, theIconIsAFileOfTheBundlesOwn)
{
    const auto iconNamed = [this](const QByteArray &name) {
        return workspace.bundleInfo(bundle("<key>CFBundleIconFile</key><string>" + name + "</string>")).icon;
    };
    tree.file("Demo.app/Contents/Resources/Full.icns");
    tree.file("Demo.app/Contents/Resources/icon.png");
    tree.file("Demo.app/Contents/outside.icns");
    tree.folder("Demo.app/Contents/Resources/folder.icns");
    tree.link("Demo.app/Contents/Resources/link.icns", "../outside.icns");
    EXPECT_EQ(iconNamed("Full.icns"), tree.at("Demo.app/Contents/Resources/Full.icns"));
    EXPECT_EQ(iconNamed("icon.png"), tree.at("Demo.app/Contents/Resources/icon.png"));
    for (const char *bad : {"missing", "folder", "link", "link.icns", "../outside", "../outside.icns", "/etc/passwd",
                            "..", ".", "", "sub/Full"})
        EXPECT_EQ(iconNamed(bad), std::nullopt) << bad;
}

} // namespace
