#ifndef ZRXMLBASEDREGISTRY_H
#define ZRXMLBASEDREGISTRY_H

#include "zrxml_export.h"

#include <QFileInfo>
#include <QObject>
#include <QStringList>

/**
 * Base of registries filled from XML files: init() lists the files of every supervised directory
 * that match the name filter, in name order, and hands each to parseXML().
 */
class ZRXML_EXPORT ZRXMLBasedRegistry : public QObject
{
    Q_OBJECT
public:
    /** @p recursive makes init() descend into subdirectories of the supervised directories. */
    ZRXMLBasedRegistry(const QString &fileSuffix, bool recursive, QObject *parent = nullptr);
    ~ZRXMLBasedRegistry() override;

    /** Reads every matching file; true when every file was read successfully. */
    virtual bool init();
    QString fileSuffix() const { return m_fileSuffix; }

protected:
    virtual QStringList supervisedDirectories() const = 0;
    /** The file name patterns to read; "*." followed by the file suffix by default. */
    virtual QStringList nameFilter() const;
    /** Reads one file; @p primaryDirectory is true for files of the first supervised directory. */
    virtual bool parseXML(const QFileInfo &file, bool primaryDirectory) = 0;

private:
    QString m_fileSuffix;
    bool m_recursive;
};

#endif
