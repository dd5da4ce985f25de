#ifndef DIRECTORYREGISTRY_H
#define DIRECTORYREGISTRY_H

#include "ZRProductTypeConfigRegistryAbstract.h"

#include <QDir>

/** A registry over one directory, loaded in its constructor like the editor's registries. */
class DirectoryRegistry : public ZRProductTypeConfigRegistryAbstract
{
public:
    explicit DirectoryRegistry(const QDir &directory)
        : m_directory(directory)
    {
        load();
    }
    QList<QDir> supervisedDirs() const override { return { m_directory }; }

private:
    QDir m_directory;
};

#endif
