#include "ZRProductTypeDescriptionReader.h"

#include "ZRXMLStringPool.h"

#include "ZRProductTypeDescription.h"
#include "ZRXMLLoader.h"
#include "ZRXMLVocabulary.h"

#include <QtGlobal>

namespace {
const QString productElementName = QStringLiteral("product");
const ZRXMLVocabulary vocabulary(QStringLiteral("products"), {}, { productElementName });
} // namespace

ZRProductTypeDescriptionReader::ZRProductTypeDescriptionReader(const QDir &dir)
    : m_dir(dir)
{ }

ZRProductTypeDescriptionReader::~ZRProductTypeDescriptionReader() = default;

QStringList ZRProductTypeDescriptionReader::fileFilter() const
{
    return { QStringLiteral("*.xml") };
}

ZRProductTypeDescription *ZRProductTypeDescriptionReader::readFile(const QFileInfo &file) const
{
    const QDomElement root = ZRXMLLoader::loadDocumentElement(file);
    if (root.isNull()) {
        QMessageLogger("libs/ZRProductProperties/ZRProductTypeDescriptionReader", __LINE__,
            "ZRProductTypeDescription* ZRProductTypeDescriptionReader::readFile(const QFileInfo&)")
            .warning("could not open %s", qUtf8Printable(file.absoluteFilePath()));
        return nullptr;
    }
    vocabulary.check(root);
    return new ZRProductTypeDescription(root.firstChildElement(productElementName));
}

QHash<ZRProductType, ZRProductTypeDescription *> ZRProductTypeDescriptionReader::readDir() const
{
    return readDir(nullptr);
}

QHash<ZRProductType, ZRProductTypeDescription *> ZRProductTypeDescriptionReader::readDir(
    QList<ZRProductTypeDescription *> *replaced) const
{
    QHash<ZRProductType, ZRProductTypeDescription *> result;
    // The products of a directory share the texts they repeat.
    const ZRXMLStringPool strings;
    const QFileInfoList files = m_dir.entryInfoList(fileFilter(), QDir::Files, QDir::Unsorted);
    result.reserve(files.size());
    for (const QFileInfo &file : files) {
        ZRProductTypeDescription *description = readFile(file);
        if (!description)
            continue;
        ZRProductTypeDescription *&slot = result[description->productType()];
        if (slot && replaced)
            replaced->append(slot);
        slot = description;
    }
    return result;
}
