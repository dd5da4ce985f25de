#ifndef ZRXMLVOCABULARY_H
#define ZRXMLVOCABULARY_H

#include "zrxml_export.h"

#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

/**
 * The attributes and child elements that a reader reads from one element. A reader keeps its
 * vocabulary beside its code, as a constant made when the library is loaded, and checks every
 * element it reads against it: with a diagnostics collector active, every other attribute or child
 * is reported as unknown, with the closest known name as suggestion; without one, check() does
 * nothing. All vocabularies of the process are listed by all(), so that the schema of the format can
 * be compared with what the readers read.
 */
class ZRXML_EXPORT ZRXMLVocabulary
{
public:
    /** How the reader takes the children of the element. */
    enum ChildNames
    {
        /** Each child is known by its exact name; check() reports the others. */
        NamedChildren,
        /**
         * The children are named by the keys of an enumeration, matched without regard to case: the
         * reader decodes each name and reports the unknown ones as keys, so check() leaves them alone.
         */
        KeyedChildren
    };

    ZRXMLVocabulary(const QString &element, const QStringList &attributes, const QStringList &children,
        ChildNames childNames = NamedChildren);
    ~ZRXMLVocabulary();
    ZRXMLVocabulary(const ZRXMLVocabulary &) = delete;
    ZRXMLVocabulary &operator=(const ZRXMLVocabulary &) = delete;

    QString element() const { return m_element; }
    QStringList attributes() const { return m_attributes; }
    QStringList children() const { return m_children; }
    ChildNames childNames() const { return m_childNames; }

    /** Reports the unknown attributes and children of @p element; nothing without a collector. */
    void check(const QDomElement &element) const;

    /** Every vocabulary that exists, in the order they were made. */
    static QList<const ZRXMLVocabulary *> all();

private:
    QString m_element;
    QStringList m_attributes;
    QStringList m_children;
    ChildNames m_childNames;
};

#endif
