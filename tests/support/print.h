#pragma once

#include <QString>

#include <ostream>

/// Lets a failed test print texts as texts.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << (text.isNull() ? "(null)" : '"' + text.toStdString() + '"');
}
