#ifndef ZRPAGECONSTRAINTIMPL_H
#define ZRPAGECONSTRAINTIMPL_H

#include "ZREmptyMeansAllSet.h"
#include "ZRPageAlignment.h"
#include "ZRPageContext.h"
#include "ZRPageType.h"
#include "zrproductproperties_export.h"

#include <QSharedData>
#include <QString>

class QDomElement;

/**
 * Shared body of ZRPageConstraint: the page types and intended alignments a constraint admits.
 * Both sets hold single flags only (compound values are decomposed on insertion); an empty set
 * admits every value.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageConstraintImpl : public QSharedData
{
public:
    ZRPageConstraintImpl();
    explicit ZRPageConstraintImpl(const ZRPageContext &context);
    ZRPageConstraintImpl(const ZRPageType &pageType, const ZRPageAlignment &alignment);
    explicit ZRPageConstraintImpl(const ZRPageType &pageType);
    ZRPageConstraintImpl(const ZRPageConstraintImpl &other);
    virtual ~ZRPageConstraintImpl();
    ZRPageConstraintImpl &operator=(const ZRPageConstraintImpl &) = delete;

    void addPageType(const ZRPageType &pageType);
    void setPageTypes(const ZRPageType &pageType);
    void addIntendedAlignment(const ZRPageAlignment &alignment);
    void setIntendedAlignment(const ZRPageAlignment &alignment);

    ZREmptyMeansAllSet<ZRPageType> pageTypes() const { return m_pageTypes; }
    ZREmptyMeansAllSet<ZRPageAlignment> intendedAlignments() const { return m_intendedAlignments; }

    bool matchesPageType(const ZRPageConstraintImpl &other) const;
    bool matchesAlignment(const ZRPageConstraintImpl &other) const;
    bool matches(const ZRPageConstraintImpl &other) const;

    bool isPageType(const ZRPageType &pageType) const;
    bool sharesPageType(const ZRPageType &pageType) const;

    QString describe() const;
    QString describeDifference(const ZRPageConstraintImpl &other) const;
    void toXml(QDomElement &element) const;

    bool operator==(const ZRPageConstraintImpl &other) const;
    bool operator!=(const ZRPageConstraintImpl &other) const { return !(*this == other); }

private:
    ZREmptyMeansAllSet<ZRPageType> m_pageTypes;
    ZREmptyMeansAllSet<ZRPageAlignment> m_intendedAlignments;
};

#endif
