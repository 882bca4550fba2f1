// SPDX-License-Identifier: MIT
#include "State/SettingsFile.h"

#include "Platform/Places.h"
#include "Support/Text.h"

#include <QFile>

QString SettingsFile::path(const Places &places)
{
    // Without a home there is no place for settings: a folder in the file's stead leaves them in memory.
    return QFile::decodeName(places.settingsFile().value_or(FileURL::root()).path());
}

QString SettingsFile::damageNotice(const QString &brokenCopy)
{
    return Text::filled(u"The settings file was damaged. It is kept as %@.", {brokenCopy});
}
