#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace kavro {

/// A colour of a control or a cell: red, green and blue, or the desktop's own.
///
/// The desktop's own colour is left to the view, so that a dark theme has no white cells.
class Color
{
public:
    /// The desktop's own colour.
    constexpr Color() = default;

    /// A colour constant of the program, 0xBBGGRR. White and the system's window colour mean the
    /// desktop's own.
    static constexpr Color fromBgr(std::uint32_t bgr)
    {
        if (bgr == 0xFFFFFF || bgr == windowBackground) {
            return {};
        }
        Color color;
        color.m_rgb = ((bgr & 0xFF) << 16) | (bgr & 0xFF00) | ((bgr >> 16) & 0xFF);
        return color;
    }

    [[nodiscard]] constexpr bool isDesktop() const { return !m_rgb.has_value(); }
    /// 0xRRGGBB; 0 for the desktop's own.
    [[nodiscard]] constexpr std::uint32_t rgb() const { return m_rgb.value_or(0); }
    /// "RRGGBB" in capitals; empty for the desktop's own.
    [[nodiscard]] QString text() const;

    friend constexpr bool operator==(const Color &, const Color &) = default;

private:
    static constexpr std::uint32_t windowBackground = 0x80000005;
    std::optional<std::uint32_t> m_rgb;
};

} // namespace kavro
