#pragma once

#include "controls/list_box.h"

#include <optional>

namespace kavro {

/// A list that is folded away behind a ">>" label and shows its selection in a label beside it.
///
/// Two states: available, set by the rules of format, document or preview, and folded, set by the
/// toggle and by picking. Unavailable refuses toggle and pick, whoever does them. The list reads
/// enabled while it is available and unfolded; one without a toggle stays folded for good, and can
/// be picked.
class DropList : public ComboBox
{
    Q_OBJECT

public:
    /// Where a name is left empty there is no such control.
    struct Names
    {
        QString toggle; ///< the ">>" label
        int toggleIndex = noIndex;
        QString label; ///< shows the selected entry
        int labelIndex = noIndex;
    };

    DropList(Form &form, const QString &name, int index, const Names &names);

    [[nodiscard]] bool isAvailable() const { return m_available; }
    [[nodiscard]] bool isFolded() const { return m_folded; }
    [[nodiscard]] bool acceptsActs() const override { return m_available && isVisible(); }
    void setAvailable(bool available);
    void setFolded(bool folded);

    /// The ">>" label, nullptr when the list has none.
    [[nodiscard]] Label *toggle() { return m_toggle ? &*m_toggle : nullptr; }
    /// The label beside the list, nullptr when it has none.
    [[nodiscard]] Label *label() { return m_label ? &*m_label : nullptr; }

    /// Act: also writes the label anew and folds the list.
    void pick(int index) override;

private:
    using Control::setEnabled;
    void show();
    void writeLabel();

    std::optional<Label> m_toggle;
    std::optional<Label> m_label;
    bool m_available = true;
    bool m_folded = true;
};

} // namespace kavro
