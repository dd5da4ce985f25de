#ifndef ZRXMLDIAGNOSTICS_H
#define ZRXMLDIAGNOSTICS_H

#include "zrxml_export.h"

#include <QDomDocument>
#include <QDomNode>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

/** One thing that a reader forgave or a check found, with the place in the file it is about. */
class ZRXML_EXPORT ZRXMLFinding
{
public:
    enum Severity
    {
        Error,
        Warning,
        Note
    };

    Severity severity = Warning;
    /** A short, stable name of what was found, such as "unknown-attribute" or "not-a-number". */
    QString rule;
    QString message;
    /** What the file probably means ("safetymargin") or the values allowed; empty when there is no help. */
    QString suggestion;
    QString file;
    /** 1-based line and column of the element or attribute; 0 when the place is not known. */
    int line = 0;
    int column = 0;

    /** "error", "warning" or "note". */
    static QString severityName(Severity severity);

    bool operator==(const ZRXMLFinding &other) const;
    bool operator!=(const ZRXMLFinding &other) const { return !(*this == other); }
};

/**
 * Collects what the readers forgive: names they do not know, values that are not a number, boolean,
 * angle, rectangle or known key, list parts they drop, values they clamp, and documents the loader
 * refuses, with the reason. A collector is active on the thread that made it, for as long as it
 * exists; while one is active the loader also keeps the position of every element and attribute, so
 * that each finding names file, line and column. Without an active collector, readers do no work for
 * it and behave exactly the same.
 */
class ZRXML_EXPORT ZRXMLDiagnostics
{
public:
    ZRXMLDiagnostics();
    ~ZRXMLDiagnostics();
    ZRXMLDiagnostics(const ZRXMLDiagnostics &) = delete;
    ZRXMLDiagnostics &operator=(const ZRXMLDiagnostics &) = delete;

    /** True while a collector exists on the calling thread; readers ask before doing work for it. */
    static bool isActive();

    /** Reports a finding about @p node, an element, an attribute or a text; nothing without a collector. */
    static void report(ZRXMLFinding::Severity severity, const QString &rule, const QString &message,
        const QDomNode &node, const QString &suggestion = QString());
    /** Reports a finding whose place is already known; nothing without a collector. */
    static void report(const ZRXMLFinding &finding);

    /**
     * Reports every attribute of @p element not among @p attributes and every child element not among
     * @p children, suggesting the closest known name.
     */
    static void checkNames(const QDomElement &element, const QStringList &attributes, const QStringList &children);
    /** The attributes half of checkNames(), for an element whose children are checked otherwise. */
    static void checkAttributes(const QDomElement &element, const QStringList &attributes);

    /**
     * Reports as "unknown-key" each comma-separated part of @p text, blanks around it ignored, that is
     * none of @p keys (matched without regard to case, as the enumeration tables match them); an empty
     * part only with @p emptyPartsCount. @p what names the kind of key ("page type"), @p node is the
     * attribute or element that holds the text. The suggestion is the closest key, or all keys of a
     * short list. Nothing for an empty text.
     */
    static void checkKeys(const QString &text, const QStringList &keys, const QString &what, const QDomNode &node,
        bool emptyPartsCount = false);
    /**
     * checkKeys() with the keys of the enumerated value class @p W, for the value of the attribute
     * @p node or the text of the element @p node; nothing for a null node or without a collector.
     */
    template<typename W> static void checkKeys(const QDomNode &node, const QString &what, bool emptyPartsCount = false)
    {
        if (isActive() && !node.isNull()) {
            checkKeys(node.isAttr() ? node.nodeValue() : node.toElement().text(), W().enumToStringTable()->keys(), what,
                node, emptyPartsCount);
        }
    }

    /**
     * The name of @p candidates closest to @p name, ignoring letter case, when it is close enough to be
     * a misspelling (at most a third of the letters differ); empty otherwise.
     */
    static QString closest(const QString &name, const QStringList &candidates);

    /** Where @p node is: its file, line and column, as far as the collector knows them. */
    static ZRXMLFinding locate(const QDomNode &node);

    /** Everything reported since the collector was made, in order. */
    QList<ZRXMLFinding> findings() const;
    /** The documents loaded while the collector was active and not yet forgotten, in the order they were loaded. */
    QList<QDomDocument> documents() const;
    /** The findings, then forgets them and the documents it knows. */
    QList<ZRXMLFinding> takeFindings();

    /**
     * Called by the loader: @p document was read from @p file, whose text @p decode gives; it is called
     * once, when a finding about the document first needs a place.
     */
    static void addSource(const QDomDocument &document, const QString &file, const std::function<QString()> &decode);

private:
    class Private;
    std::unique_ptr<Private> d;
};

#endif
