#include "ZRXMLBasedRegistry.h"

#include <QDir>
#include <QDirIterator>

ZRXMLBasedRegistry::ZRXMLBasedRegistry(const QString &fileSuffix, bool recursive, QObject *parent)
    : QObject(parent)
    , m_fileSuffix(fileSuffix)
    , m_recursive(recursive)
{ }

ZRXMLBasedRegistry::~ZRXMLBasedRegistry() = default;

QStringList ZRXMLBasedRegistry::nameFilter() const
{
    return { QLatin1String("*.") + m_fileSuffix };
}

bool ZRXMLBasedRegistry::init()
{
    bool allRead = true;
    const QStringList directories = supervisedDirectories();
    const QStringList filters = nameFilter();
    for (int i = 0; i < directories.size(); ++i) {
        QStringList files;
        QDirIterator it(directories.at(i), filters, QDir::Files,
            m_recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
        while (it.hasNext())
            files.append(it.next());
        files.sort();
        for (const QString &file : std::as_const(files))
            allRead = parseXML(QFileInfo(file), i == 0) && allRead;
    }
    return allRead;
}
