#ifndef ZRPRODUCTS_CHECKER_H
#define ZRPRODUCTS_CHECKER_H

#include <QDir>
#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QString>

#include <QStringList>
#include <QtGlobal>

class QDomElement;
class QFileInfo;

/**
 * Collects the warnings that the library logs while it exists, instead of printing them; other
 * messages go to the handler that was installed before. Not nestable.
 */
class WarningCollector
{
public:
    WarningCollector();
    ~WarningCollector();
    WarningCollector(const WarningCollector &) = delete;
    WarningCollector &operator=(const WarningCollector &) = delete;

    /** The warnings logged so far, in order. */
    QStringList warnings() const { return m_warnings; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    QtMessageHandler m_previous = nullptr;
    QStringList m_warnings;
};

/** One finding of the catalogue check, attributed to a file. */
struct Problem
{
    QString file;
    /** What kind of problem: "not-loaded", "no-product", "no-name", "invalid", "duplicate", "warning",
     * "unknown-key", "replaced-by". */
    QString kind;
    QString message;
    /** The element path ("/products/product/surroundings/surrounding[2]/@type"), when there is one. */
    QString path;
    /** The key that decodes to nothing, for "unknown-key". */
    QString key;

    /** "file: message". */
    QString toText() const;
    QJsonObject toJson() const;
};

/**
 * Lints product description directories the way the registries read them: each file through the
 * library's reader with its warnings captured, then the product element's attributes and children
 * for keys that decode to nothing, and the directories together for product types described twice.
 */
class CatalogueChecker
{
public:
    /**
     * Checks @p dirs as one registry reads them: every "*.xml" file in listing order, the later file
     * of a directory replacing an earlier one of the same product type, and the first directory
     * winning over later ones. Returns the product types kept, with the file each was kept from.
     */
    QHash<QString, QString> checkRegistry(const QList<QDir> &dirs);

    /**
     * Reports every legacy product (of @p legacy, as returned by checkRegistry()) whose "replacedBy"
     * names no product of @p current.
     */
    void checkReplacements(const QHash<QString, QString> &legacy, const QHash<QString, QString> &current);

    const QList<Problem> &problems() const { return m_problems; }
    int fileCount() const { return m_fileCount; }

private:
    /** Checks one file; returns its product type name (empty when it has none or does not load). */
    QString checkFile(const QFileInfo &file);
    void checkKeys(const QString &file, const QDomElement &product);
    void report(const QString &file, const QString &kind, const QString &message, const QString &path = QString(),
        const QString &key = QString());

    QList<Problem> m_problems;
    /** "replacedBy" of every product read, by product type. */
    QHash<QString, QString> m_replacedBy;
    int m_fileCount = 0;
};

#endif
