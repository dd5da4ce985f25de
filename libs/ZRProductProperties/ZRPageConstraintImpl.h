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
    /** Both sets empty: admits every page. */
    ZRPageConstraintImpl();
    explicit ZRPageConstraintImpl(const ZRPageContext &context);
    ZRPageConstraintImpl(const ZRPageType &pageType, const ZRPageAlignment &alignment);
    /** The flags of @p pageType; every alignment. */
    explicit ZRPageConstraintImpl(const ZRPageType &pageType);
    ZRPageConstraintImpl(const ZRPageConstraintImpl &other);
    virtual ~ZRPageConstraintImpl();
    ZRPageConstraintImpl &operator=(const ZRPageConstraintImpl &) = delete;

    /** Adds each single flag of @p pageType; 0 adds nothing. */
    void addPageType(const ZRPageType &pageType);
    /** Replaces the page types by the single flags of @p pageType. */
    void setPageTypes(const ZRPageType &pageType);
    /** Adds each single flag of @p alignment; 0 adds nothing. */
    void addIntendedAlignment(const ZRPageAlignment &alignment);
    /** Replaces the alignments by the single flags of @p alignment. */
    void setIntendedAlignment(const ZRPageAlignment &alignment);

    ZREmptyMeansAllSet<ZRPageType> pageTypes() const { return m_pageTypes; }
    ZREmptyMeansAllSet<ZRPageAlignment> intendedAlignments() const { return m_intendedAlignments; }

    /** True when either side admits every page type or both name a common one. */
    bool matchesPageType(const ZRPageConstraintImpl &other) const;
    /** True when either side admits every alignment or both name a common one. */
    bool matchesAlignment(const ZRPageConstraintImpl &other) const;
    /** Page types and alignments both match; symmetric. */
    bool matches(const ZRPageConstraintImpl &other) const;

    /** Whether the constraint admits @p pageType: false for an invalid type, true when all types are admitted. */
    bool isPageType(const ZRPageType &pageType) const;
    /**
     * Whether the constraint names a flag of @p pageType explicitly. Unlike isPageType(), a
     * constraint that admits every page type names none.
     */
    bool sharesPageType(const ZRPageType &pageType) const;

    /** "SeitenTypen: {...} Alignment {...}" with the keys of both sets. */
    QString describe() const;
    /** "Page Constraints Okay" when the constraints match, else which of the two parts differs (1 or 0). */
    QString describeDifference(const ZRPageConstraintImpl &other) const;
    /**
     * Appends one "pagetype" child per page type and one "intendedAlignment" child per alignment to
     * @p element; a constraint that admits everything writes nothing.
     */
    void toXml(QDomElement &element) const;

    bool operator==(const ZRPageConstraintImpl &other) const;
    bool operator!=(const ZRPageConstraintImpl &other) const { return !(*this == other); }

private:
    ZREmptyMeansAllSet<ZRPageType> m_pageTypes;
    ZREmptyMeansAllSet<ZRPageAlignment> m_intendedAlignments;
};

#endif
