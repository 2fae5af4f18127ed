#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <string>

/// A temporary folder with the bytes of its files at hand.
class TestFolder
{
public:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }

    QString write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        file.open(QIODevice::WriteOnly);
        file.write(bytes);
        return file.fileName();
    }

    /// "(none)" for a file that isn't there.
    [[nodiscard]] std::string read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    void makeFolder(const char *name) const
    {
        QDir(m_folder.path()).mkpath(QString::fromUtf8(name));
    }

    /// The names of all files and folders, hidden ones too, with blanks between.
    [[nodiscard]] std::string entries(const char *name = ".") const
    {
        return QDir(path(name))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDir::Name)
            .join(QChar(u' '))
            .toStdString();
    }

private:
    QTemporaryDir m_folder;
};
