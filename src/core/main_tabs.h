#pragma once

namespace kavro {

/// The tabs of `tabMain`.
enum MainTab {
    CalculatorTab,
    PartitionTab,
    EditorTab,
    PlayerTab,
    DiagnoseTab,
    MacroTab,
    OnlineTab
};

/// The tabs of `SSTab2`.
enum EditorPageTab { BasicPage, SearchPage, FiltersPage, FontPage, TimingPage };

} // namespace kavro
