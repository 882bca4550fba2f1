// SPDX-License-Identifier: MIT
// A program of its own: each language must be switched to for the first time while others are looking texts up.
#include "Support/LanguageManager.h"
#include "Support/Text.h"
#include "Support/UserDefaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

TEST(LanguageSwitching, letsThreadsLookUpWhileTheMainThreadSwitches)
{
    const QTemporaryDir folder;
    UserDefaults defaults(folder.filePath(u"Brisko.conf"_s));
    const QString english = u"Removed 12,500 duplicates — x freed"_s;
    const QString german = u"12.500 Duplikate entfernt – x freigegeben"_s;
    const QString japanese = u"12,500個の重複ファイルを削除 — xを解放しました"_s;
    LanguageManager::apply(AppLanguage::en, defaults);
    std::atomic<bool> done{false};
    std::atomic<int> wrong{0};
    std::atomic<int> germans{0};
    std::vector<std::thread> readers;
    readers.reserve(4);
    for (int reader = 0; reader < 4; ++reader) {
        readers.emplace_back([&] {
            while (!done) {
                // Text and grouping must come from one language, never one from each.
                const QString text = Text::filled(u"Removed %lld duplicates — %@ freed", {qint64{12'500}, u"x"_s});
                germans += text == german;
                wrong += text != english && text != german && text != japanese;
                wrong += LanguageManager::nativeName(LanguageManager::current()).isEmpty();
            }
        });
    }
    const std::array choices{AppLanguage::de, AppLanguage::ja, AppLanguage::en};
    for (size_t turn = 0; turn < 60 || germans == 0; ++turn)
        LanguageManager::apply(choices[turn % choices.size()], defaults);
    done = true;
    for (std::thread &reader : readers)
        reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_GT(germans, 0);
}

} // namespace
