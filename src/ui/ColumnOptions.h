#pragma once

#include <QString>

#include <array>

namespace lingomat {

class SettingsStore;

/// The ten columns of the list that the user can hide, in the order of the options.
enum class ListColumn {
    Wortart,
    Grammatikalisch,
    Funktional,
    Bereich,
    Beispielsatz,
    Zusatzinfo,
    Quelle,
    Eingabedatum,
    Aenderungsdatum,
    Score,
};
inline constexpr int ListColumnCount = 10;

/// Key of a column in section "List" of the settings.
[[nodiscard]] QString settingsKey(ListColumn column);
/// Header of a column in the interface language: "Part of Speech".
[[nodiscard]] QString columnTitle(ListColumn column);

/// Which of the ten columns are shown. Every column is, until the settings say otherwise.
class ColumnOptions {
public:
    [[nodiscard]] bool isShown(ListColumn column) const { return m_shown[static_cast<size_t>(column)]; }
    void setShown(ListColumn column, bool shown) { m_shown[static_cast<size_t>(column)] = shown; }

    /// Reads section "List". A missing key, or any value but "0", means shown.
    void load(const SettingsStore& settings);
    void save(SettingsStore& settings) const;

private:
    std::array<bool, ListColumnCount> m_shown{true, true, true, true, true, true, true, true, true, true};
};

} // namespace lingomat
