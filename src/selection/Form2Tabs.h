#pragma once

#include <QString>

#include <array>

namespace lingomat {

// The tabs of the selection form, numbered from 1 as the menu names them.

inline constexpr int TabCount = 9;
inline constexpr int StandardTabCount = 4;

enum TabNumber : int {
    TabQuelle = 1,
    TabBereich,
    TabWortart,
    TabFehlerscore,
    TabGrammatikalisch,
    TabFunktional,
    TabWortbestandteile,
    TabReferenzen,
    TabSonstiges,
};

[[nodiscard]] QString tabName(int number); ///< what the tab's data holds
[[nodiscard]] QString germanTabCaption(int number);
[[nodiscard]] QString englishTabCaption(int number);

/// An entry of the edit menu and the tab it selects.
struct TabCommand {
    const char* menuEntry;
    int tab;
};

inline constexpr std::array<TabCommand, 12> tabCommands{{
    {"mnQuelle", TabQuelle},
    {"mnBereich", TabBereich},
    {"mnWortart", TabWortart},
    {"mnFehlerscore", TabFehlerscore},
    {"mnGrammatikalisch", TabGrammatikalisch},
    {"mnFunktional", TabFunktional},
    {"mnWortbestandteile", TabWortbestandteile},
    {"mnRelationen", TabReferenzen},
    {"mnBeispielsatz", TabSonstiges},
    {"mnEingabedatum", TabSonstiges},
    {"mnChangeDatum", TabSonstiges},
    {"mnZusatzinfo", TabSonstiges},
}};

} // namespace lingomat
