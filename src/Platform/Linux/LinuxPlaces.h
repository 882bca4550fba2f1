// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/HostFacts.h"
#include "Platform/PlaceTable.h"
#include "Platform/Places.h"

/// The documented places, and after them this desktop's own: the XDG base directories and `user-dirs.dirs`.
class LinuxPlaces : public Places
{
public:
    explicit LinuxPlaces(const HostFacts &facts);

    [[nodiscard]] std::optional<FileURL> home() const override { return m_home; }
    [[nodiscard]] std::optional<FileURL> accountHome() const override { return m_accountHome; }
    [[nodiscard]] QList<FileURL> folders(Place place) const override;
    [[nodiscard]] QSet<QByteArray> installerExtensions() const override;
    [[nodiscard]] FileURL temporaryFolder() const override { return m_temporary; }
    [[nodiscard]] std::optional<FileURL> dataFolder() const override { return below(PlaceBase::dataHome, "Brisko"); }
    [[nodiscard]] std::optional<FileURL> settingsFile() const override
    {
        return below(PlaceBase::configHome, "Brisko/Brisko.conf");
    }
    [[nodiscard]] QList<FileURL> guarded() const override;

private:
    [[nodiscard]] std::optional<FileURL> below(PlaceBase base, QByteArrayView path) const;

    std::optional<FileURL> m_home;
    std::optional<FileURL> m_accountHome;
    FileURL m_temporary;
    PlaceTable::Bases m_bases; // empty without a usable home
};
