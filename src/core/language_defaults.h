#pragma once

#include "core/language.h"

#include <QStringView>

#include <span>

namespace kavro {

/// One English text of the language table.
struct DefaultText
{
    LangGroup group;
    int item;
    QStringView text;
    QStringView tip = {};
};

/// All texts that stand in the program, by group and item. What isn't listed is empty.
std::span<const DefaultText> defaultTexts();

} // namespace kavro
