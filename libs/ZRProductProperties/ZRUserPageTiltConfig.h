#ifndef ZRUSERPAGETILTCONFIG_H
#define ZRUSERPAGETILTCONFIG_H

#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QList>
#include <QString>

/**
 * On which pages the user may not rotate the page.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRUserPageTiltConfig
{
public:
    /** Rotation allowed everywhere. */
    ZRUserPageTiltConfig();
    /**
     * Reads the attributes "disabled" (default false) and "pages" (a list for decodeIntList(),
     * default empty) of a "pageTilt" element. A null element gives the defaults.
     */
    explicit ZRUserPageTiltConfig(const QDomElement &element);
    virtual ~ZRUserPageTiltConfig();

    /**
     * The page numbers of a comma-separated list such as "1, 3, 5", in the given order. Pieces that
     * are not numbers are dropped. Unlike the page lists of production extra pages, this list has
     * no ranges: "3-5" is dropped, not expanded. A list of more than ZRXMLLimits::maxListPages pages
     * gives none, with the warning "Page list too long in the product description.". Dropped pieces
     * and a list over the limit are reported to a diagnostics collector on @p node, where the text is from.
     */
    static QList<int> decodeIntList(const QString &text, const QDomNode &node = QDomNode());

    bool isDisabled() const { return m_disabled; }
    QList<int> pages() const { return m_pages; }
    /** False when rotation is not disabled; otherwise true for every page if no pages are listed, else for the listed
     * ones. */
    bool isPageRotationDisabled(int page) const;

    bool operator==(const ZRUserPageTiltConfig &other) const;
    bool operator!=(const ZRUserPageTiltConfig &other) const;

private:
    bool m_disabled = false;
    QList<int> m_pages;
};

#endif
