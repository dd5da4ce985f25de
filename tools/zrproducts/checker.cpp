#include "checker.h"

#include "descriptions.h"

#include "ZRArticleClass.h"
#include "ZRCoverType.h"
#include "ZRImageFXs.h"
#include "ZRJigType.h"
#include "ZRPageAlignment.h"
#include "ZRPageNamingStyle.h"
#include "ZRPageType.h"
#include "ZRProductAlignmentStyle.h"
#include "ZRProductTypeDescription.h"
#include "ZRProductTypeDescriptionReader.h"
#include "ZRSpotColor.h"
#include "ZRSurroundingType.h"
#include "ZRXMLLoader.h"
#include "ZRXMLRewriterStrategy.h"

#include <QDomElement>
#include <QFileInfo>
#include <QMap>

#include <cstdio>
#include <functional>
#include <memory>

namespace {
WarningCollector *currentCollector = nullptr;

const QString productElementName = QStringLiteral("product");

/** The path of @p element from the document root; an index is added where siblings share its name. */
QString pathOf(const QDomElement &element)
{
    QStringList steps;
    for (QDomElement e = element; !e.isNull(); e = e.parentNode().toElement()) {
        const QString name = e.tagName();
        int index = 0;
        int count = 0;
        const QDomNode parent = e.parentNode();
        for (QDomElement sibling = parent.firstChildElement(name); !sibling.isNull();
             sibling = sibling.nextSiblingElement(name)) {
            ++count;
            if (sibling == e)
                index = count;
        }
        steps.prepend(count > 1 ? QStringLiteral("%1[%2]").arg(name).arg(index) : name);
    }
    return QLatin1Char('/') + steps.join(QLatin1Char('/'));
}

QString attributePath(const QDomElement &element, const QString &attribute)
{
    return pathOf(element) + QLatin1String("/@") + attribute;
}

/** Messages with a repeat count when the same text came more than once, in order of first appearance. */
QStringList counted(const QStringList &messages)
{
    QStringList order;
    QHash<QString, int> counts;
    for (const QString &message : messages) {
        if (counts[message]++ == 0)
            order.append(message);
    }
    QStringList result;
    for (const QString &message : std::as_const(order)) {
        const int count = counts.value(message);
        result.append(count > 1 ? QStringLiteral("%1 (%2 times)").arg(message).arg(count) : message);
    }
    return result;
}
} // namespace

WarningCollector::WarningCollector()
{
    Q_ASSERT(!currentCollector);
    currentCollector = this;
    m_previous = qInstallMessageHandler(handle);
}

WarningCollector::~WarningCollector()
{
    qInstallMessageHandler(m_previous);
    currentCollector = nullptr;
}

void WarningCollector::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (currentCollector && (type == QtWarningMsg || type == QtCriticalMsg)) {
        currentCollector->m_warnings.append(message);
        return;
    }
    if (currentCollector && currentCollector->m_previous)
        currentCollector->m_previous(type, context, message);
    else
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

QString Problem::toText() const
{
    return file + QLatin1String(": ") + message;
}

QJsonObject Problem::toJson() const
{
    QJsonObject object { { QStringLiteral("file"), file }, { QStringLiteral("kind"), kind },
        { QStringLiteral("message"), message } };
    if (!path.isEmpty())
        object.insert(QStringLiteral("path"), path);
    if (kind == QLatin1String("unknown-key"))
        object.insert(QStringLiteral("key"), key);
    return object;
}

QHash<QString, QString> CatalogueChecker::checkRegistry(const QList<QDir> &dirs)
{
    QHash<QString, QString> kept;
    for (const QDir &dir : dirs) {
        const ZRProductTypeDescriptionReader reader(dir);
        // The same listing as the reader's: its name filter, files only, in file system order.
        const QFileInfoList files = dir.entryInfoList(reader.fileFilter(), QDir::Files, QDir::Unsorted);
        QMap<QString, QStringList> filesByType;
        for (const QFileInfo &file : files) {
            ++m_fileCount;
            const QString type = checkFile(file);
            if (!type.isEmpty())
                filesByType[type].append(file.filePath());
        }

        for (auto it = filesByType.cbegin(); it != filesByType.cend(); ++it) {
            const QString &type = it.key();
            QStringList candidates = it.value();
            QString winner;
            QString reason;
            if (kept.contains(type)) {
                winner = kept.value(type);
                reason = QStringLiteral("an earlier directory wins");
            } else {
                winner = candidates.takeLast();
                kept.insert(type, winner);
                reason = QStringLiteral("the later file in the directory listing wins");
            }
            for (const QString &loser : std::as_const(candidates)) {
                report(loser, QStringLiteral("duplicate"),
                    QStringLiteral("product type \"%1\" is described twice; the registry keeps the one in %2 (%3)")
                        .arg(type, winner, reason));
            }
        }
    }
    return kept;
}

void CatalogueChecker::checkReplacements(const QHash<QString, QString> &legacy, const QHash<QString, QString> &current)
{
    for (auto it = legacy.cbegin(); it != legacy.cend(); ++it) {
        const QString replacement = m_replacedBy.value(it.value());
        if (!replacement.isEmpty() && !current.contains(replacement)) {
            report(it.value(), QStringLiteral("replaced-by"),
                QStringLiteral("legacy product \"%1\" is replaced by \"%2\", which no current product describes")
                    .arg(it.key(), replacement));
        }
    }
}

QString CatalogueChecker::checkFile(const QFileInfo &file)
{
    const QString path = file.filePath();
    std::unique_ptr<ZRProductTypeDescription> description;
    QStringList readWarnings;
    {
        WarningCollector collector;
        description.reset(ZRProductTypeDescriptionReader(file.dir()).readFile(file));
        readWarnings = collector.warnings();
    }
    if (!description) {
        report(path, QStringLiteral("not-loaded"),
            QStringLiteral("does not load: %1")
                .arg(readWarnings.isEmpty() ? QStringLiteral("not a readable XML document")
                                            : readWarnings.join(QLatin1String("; "))));
        return QString();
    }
    for (const QString &warning : counted(readWarnings))
        report(path, QStringLiteral("warning"), QStringLiteral("library warning while reading: %1").arg(warning));

    const QDomElement root = ZRXMLLoader::loadDocumentElement(file);
    const QDomElement product = root.firstChildElement(productElementName);
    if (product.isNull()) {
        report(path, QStringLiteral("no-product"),
            QStringLiteral("no \"product\" element below the document element \"%1\"").arg(root.tagName()));
        return QString();
    }

    const QString name = description->productType().name();
    if (name.isEmpty())
        report(path, QStringLiteral("no-name"), QStringLiteral("the \"product\" element has no \"name\""));
    m_replacedBy.insert(path, description->replacedByProduct().name());

    if (!description->isValid()) {
        QString reason;
        if (description->articleClass().value() == 0) {
            reason = product.hasAttribute(QStringLiteral("class"))
                ? QStringLiteral("its \"class\" \"%1\" gives article class 0")
                      .arg(product.attribute(QStringLiteral("class")))
                : QStringLiteral("it has no \"class\" (article class 0)");
        } else {
            reason = QStringLiteral("it has no binding (cover type 0) and its class \"%1\" needs one")
                         .arg(product.attribute(QStringLiteral("class")));
        }
        report(path, QStringLiteral("invalid"), QStringLiteral("product \"%1\" is invalid: %2").arg(name, reason));
    }

    QStringList pageWarnings;
    {
        WarningCollector collector;
        description->pageTypes(Descriptions::typicalContentPages);
        pageWarnings = collector.warnings();
    }
    const QString pagesNote = product.firstChildElement(QStringLiteral("pages")).isNull()
        ? QStringLiteral(" (there is no \"pages\" element)")
        : QString();
    for (const QString &warning : counted(pageWarnings)) {
        report(path, QStringLiteral("warning"),
            QStringLiteral("library warning while expanding the pages: %1%2").arg(warning, pagesNote));
    }

    checkKeys(path, product);
    return name;
}

namespace {
/** Reports every comma-separated key of @p text that the key table of @p W does not know. */
template<typename W>
void checkKeyList(const QString &text, const QString &what, bool emptyKeysCount,
    const std::function<void(const QString &message, const QString &key)> &report)
{
    const auto *table = W().enumToStringTable();
    const QStringList parts = text.split(QLatin1Char(','));
    for (const QString &part : parts) {
        const QString key = part.trimmed();
        if (key.isEmpty()) {
            if (emptyKeysCount)
                report(QStringLiteral("empty %1").arg(what), key);
        } else if (!table->containsKey(key)) {
            report(QStringLiteral("unknown %1 \"%2\"").arg(what, key), key);
        }
    }
}

template<typename W>
void checkAttribute(const QDomElement &element, const QString &attribute, const QString &what,
    const std::function<void(const QString &, const QString &, const QString &)> &report, bool emptyKeysCount = false)
{
    if (!element.hasAttribute(attribute))
        return;
    const QString text = element.attribute(attribute);
    if (text.isEmpty())
        return;
    const QString path = attributePath(element, attribute);
    checkKeyList<W>(text, what, emptyKeysCount,
        [&](const QString &message, const QString &key) { report(message + QLatin1String(" in ") + path, path, key); });
}
} // namespace

void CatalogueChecker::checkKeys(const QString &file, const QDomElement &product)
{
    const auto unknown = [this, &file](const QString &message, const QString &path, const QString &key) {
        report(file, QStringLiteral("unknown-key"), message, path, key);
    };

    checkAttribute<ZRArticleClass>(product, QStringLiteral("class"), QStringLiteral("article class"), unknown);
    checkAttribute<ZRCoverType>(product, QStringLiteral("binding"), QStringLiteral("binding"), unknown);
    checkAttribute<ZRImageFXs>(product, QStringLiteral("imageFXs"), QStringLiteral("image effect"), unknown);
    checkAttribute<ZRProductAlignmentStyle>(
        product, QStringLiteral("productAlignment"), QStringLiteral("product alignment"), unknown);
    checkAttribute<ZRXMLRewriterStrategy>(
        product, QStringLiteral("conversionStrategy"), QStringLiteral("conversion strategy"), unknown);
    // Every part of the product's list becomes a spot colour, an empty one included.
    checkAttribute<ZRSpotColor>(product, QStringLiteral("spotColor"), QStringLiteral("spot colour"), unknown, true);

    // Empty or unknown entries of the page list become page type 0, which the library itself warns about.
    const QDomElement pages = product.firstChildElement(QStringLiteral("pages"));
    if (!pages.isNull()) {
        const QString path = pathOf(pages);
        checkKeyList<ZRPageType>(
            pages.text(), QStringLiteral("page type"), false, [&](const QString &message, const QString &key) {
                unknown(message + QLatin1String(" in ") + path, path, key);
            });
    }

    for (QDomElement surroundings = product.firstChildElement(QStringLiteral("surroundings")); !surroundings.isNull();
         surroundings = surroundings.nextSiblingElement(QStringLiteral("surroundings"))) {
        for (QDomElement surrounding = surroundings.firstChildElement(QStringLiteral("surrounding"));
             !surrounding.isNull(); surrounding = surrounding.nextSiblingElement(QStringLiteral("surrounding"))) {
            checkAttribute<ZRSurroundingType>(
                surrounding, QStringLiteral("type"), QStringLiteral("surrounding type"), unknown);
            checkAttribute<ZRPageType>(surrounding, QStringLiteral("pageType"), QStringLiteral("page type"), unknown);
            checkAttribute<ZRPageAlignment>(
                surrounding, QStringLiteral("alignment"), QStringLiteral("alignment"), unknown);
            checkAttribute<ZRSpotColor>(
                surrounding, QStringLiteral("spotColor"), QStringLiteral("spot colour"), unknown);
        }
    }

    const QDomElement defaults = product.firstChildElement(QStringLiteral("defaults"));
    for (QDomElement entry = defaults.firstChildElement(QStringLiteral("default")); !entry.isNull();
         entry = entry.nextSiblingElement(QStringLiteral("default"))) {
        checkAttribute<ZRPageType>(entry, QStringLiteral("pageType"), QStringLiteral("page type"), unknown);
        checkAttribute<ZRPageAlignment>(entry, QStringLiteral("alignment"), QStringLiteral("alignment"), unknown);
    }

    const QDomElement abilities = product.firstChildElement(QStringLiteral("editorAbilities"));
    const QDomElement naming = abilities.firstChildElement(QStringLiteral("pageNamingStyle"));
    if (!naming.isNull()) {
        const QString path = pathOf(naming);
        checkKeyList<ZRPageNamingStyle>(
            naming.text(), QStringLiteral("page naming style"), false, [&](const QString &message, const QString &key) {
                unknown(message + QLatin1String(" in ") + path, path, key);
            });
    }
    const ZRJigType jigType;
    const QDomElement jigs = abilities.firstChildElement(QStringLiteral("jigs"));
    for (QDomElement jig = jigs.firstChildElement(); !jig.isNull(); jig = jig.nextSiblingElement()) {
        if (!jigType.enumToStringTable()->containsKey(jig.tagName())) {
            const QString path = pathOf(jig);
            unknown(QStringLiteral("unknown jig type \"%1\" in %2").arg(jig.tagName(), path), path, jig.tagName());
        }
        for (QDomElement categories = jig.firstChildElement(QStringLiteral("categories")); !categories.isNull();
             categories = categories.nextSiblingElement(QStringLiteral("categories"))) {
            checkAttribute<ZRPageType>(categories, QStringLiteral("pageType"), QStringLiteral("page type"), unknown);
        }
    }
}

void CatalogueChecker::report(
    const QString &file, const QString &kind, const QString &message, const QString &path, const QString &key)
{
    m_problems.append({ file, kind, message, path, key });
}
