#ifndef ZRPRODUCTS_CHECKER_H
#define ZRPRODUCTS_CHECKER_H

#include "report.h"

#include "ZRXMLDiagnostics.h"

#include <QDir>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

class QFileInfo;

/**
 * Collects the warnings that the library logs on its thread while it exists, instead of printing
 * them; other messages, and those of other threads, go to the handler that was installed before.
 * Collectors nest: the innermost one of a thread collects.
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

    WarningCollector *m_outer = nullptr;
    QStringList m_warnings;
};

/** How findings read as text. */
struct FindingStyle
{
    /** The source line of each finding that has a place, with a caret under its column. */
    bool showSource = false;
    bool colour = false;
    /** The findings alone, without the summary line. */
    bool quiet = false;
};

/**
 * Lints product description files the way the library reads them: each file through the library's
 * reader while a ZRXMLDiagnostics collector is active, so that the readers report what they forgive
 * with file, line and column, then the per-product rules; on top of that what no reader sees: a file
 * without product or name, an invalid product, product types described twice, legacy products
 * replaced by an unknown product. Library warnings that no finding reports become findings too.
 */
class CatalogueChecker
{
public:
    /** @p style: how report() writes the findings as text. */
    explicit CatalogueChecker(const FindingStyle &style = FindingStyle())
        : m_style(style)
    { }

    /**
     * Checks @p files, each alone, as legacy products when @p legacy is true; returns the product
     * type name of each, empty for a file that has none or does not load. Files are checked in
     * parallel; their findings keep the order of @p files.
     */
    QStringList checkFiles(const QList<QFileInfo> &files, bool legacy = false);
    /**
     * Checks @p dirs as one registry reads them: every "*.xml" file in listing order, the later file
     * of a directory replacing an earlier one of the same product type, and the first directory
     * winning over later ones. Returns the product types kept, with the file each was kept from.
     */
    QHash<QString, QString> checkRegistry(const QList<QDir> &dirs, bool legacy = false);

    /**
     * Reports every legacy product (of @p legacy, as returned by checkRegistry()) whose "replacedBy"
     * names no product of @p current.
     */
    void checkReplacements(const QHash<QString, QString> &legacy, const QHash<QString, QString> &current);

    int count(ZRXMLFinding::Severity severity) const;

    /**
     * The findings sorted by file, line and column, with a summary of the counts: a table of findings
     * and a summary record in JSON, one line per finding in the form "file:line:col: severity:
     * message [rule]" and a summary line in text.
     */
    Report report() const;

    /** Where a file's product is, and what the checks across files need of it. */
    struct Product
    {
        QString name;
        QString replacedBy;
        ZRXMLFinding place;
        ZRXMLFinding replacedByPlace;
    };

private:
    void report(
        const ZRXMLFinding &place, ZRXMLFinding::Severity severity, const QString &rule, const QString &message);

    FindingStyle m_style;
    QList<ZRXMLFinding> m_findings;
    /** The text of each finding, as the style writes it. */
    QStringList m_lines;
    /** The product of every file read, by file. */
    QHash<QString, Product> m_products;
    int m_fileCount = 0;
};

#endif
