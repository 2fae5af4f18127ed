#pragma once

#include <QString>

namespace kavro {

/// The program's title.
inline QString versionName()
{
    return QStringLiteral("Kavro");
}

// The build reads these three for the packages.
constexpr int versionMajor = 4;
constexpr int versionMinor = 0;
constexpr int versionRevision = 0;

/// "Kavro 4.0", for windows.
inline QString titleWithVersion()
{
    return QStringLiteral("%1 %2.%3").arg(versionName()).arg(versionMajor).arg(versionMinor);
}

/// "4.00": major, ".", minor, "0". Packs and stored files are compared with it.
inline QString versionNumber()
{
    return QStringLiteral("%1.%2").arg(versionMajor).arg(versionMinor) + u'0';
}

/// Major, minor and revision without separators.
inline QString buildNumber()
{
    return QStringLiteral("%1%2%3").arg(versionMajor).arg(versionMinor).arg(versionRevision);
}

} // namespace kavro
