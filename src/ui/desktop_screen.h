#pragma once

#include "core/ports.h"

namespace kavro {

/// The screen that the program runs on.
class DesktopScreen : public Screen
{
public:
    [[nodiscard]] QSize size() const override;
    [[nodiscard]] QStringList fonts() const override;
};

} // namespace kavro
