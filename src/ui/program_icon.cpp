#include "ui/program_icon.h"

#include <QDir>
#include <QIcon>

namespace kavro {

QIcon programIcon()
{
    QIcon icon;
    const QDir pictures(QStringLiteral(":/icons"));
    for (const QString &name : pictures.entryList()) {
        icon.addFile(pictures.filePath(name));
    }
    return icon;
}

} // namespace kavro
