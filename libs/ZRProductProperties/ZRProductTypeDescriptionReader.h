#ifndef ZRPRODUCTTYPEDESCRIPTIONREADER_H
#define ZRPRODUCTTYPEDESCRIPTIONREADER_H

#include "ZRProductType.h"
#include "zrproductproperties_export.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QStringList>

class ZRProductTypeDescription;

/** Reads the product description files ("*.xml") of one directory. */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductTypeDescriptionReader
{
public:
    explicit ZRProductTypeDescriptionReader(const QDir &dir);
    virtual ~ZRProductTypeDescriptionReader();

    /** The file name patterns read: "*.xml". */
    QStringList fileFilter() const;
    /**
     * A new description of the first "product" child of the file's document element (all defaults when
     * there is none), or nullptr with the warning "could not open <path>" when the file cannot be loaded.
     * The caller owns the result.
     */
    ZRProductTypeDescription *readFile(const QFileInfo &file) const;
    /**
     * The descriptions of every matching file of the directory (not its subdirectories), by product
     * type, in the order of the file system listing; a later file replaces an earlier one of the same
     * product type in the hash without freeing it. The caller owns the descriptions.
     */
    QHash<ZRProductType, ZRProductTypeDescription *> readDir() const;
    /** As readDir(), but also hands every description to @p replaced when a later file replaces it. */
    QHash<ZRProductType, ZRProductTypeDescription *> readDir(QList<ZRProductTypeDescription *> *replaced) const;

private:
    QDir m_dir;
};

#endif
