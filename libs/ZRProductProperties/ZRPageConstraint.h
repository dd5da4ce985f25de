#ifndef ZRPAGECONSTRAINT_H
#define ZRPAGECONSTRAINT_H

#include "ZREmptyMeansAllSet.h"
#include "ZRPageAlignment.h"
#include "ZRPageContext.h"
#include "ZRPageType.h"
#include "zrproductproperties_export.h"

#include <QSharedDataPointer>
#include <QString>

class QDomElement;
class ZRPageConstraintImpl;

/**
 * For which pages something is meant: a set of page types and a set of intended alignments, each
 * of which admits every value while it is empty. Copies share their data until one of them is
 * changed.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageConstraint
{
public:
    /** Admits every page type and every alignment. */
    ZRPageConstraint();
    /** The page type and the alignment of @p context. */
    explicit ZRPageConstraint(const ZRPageContext &context);
    ZRPageConstraint(const ZRPageType &pageType, const ZRPageAlignment &alignment);
    /** The flags of @p pageType with every alignment. */
    explicit ZRPageConstraint(const ZRPageType &pageType);
    ZRPageConstraint(const ZRPageConstraint &other);
    ZRPageConstraint(ZRPageConstraint &&other) noexcept;
    virtual ~ZRPageConstraint();
    ZRPageConstraint &operator=(const ZRPageConstraint &other);
    ZRPageConstraint &operator=(ZRPageConstraint &&other) noexcept;

    /** Adds each single flag of @p pageType; 0 adds nothing. */
    void addPageType(const ZRPageType &pageType);
    /** Replaces the page types by the single flags of @p pageType; 0 admits every page type again. */
    void setPageTypes(const ZRPageType &pageType);
    /** Adds each single flag of @p alignment; 0 adds nothing. */
    void addIntendedAlignment(const ZRPageAlignment &alignment);
    /** Replaces the alignments by the single flags of @p alignment; 0 admits every alignment again. */
    void setIntendedAlignment(const ZRPageAlignment &alignment);

    /** The single page type flags; empty means all. */
    ZREmptyMeansAllSet<ZRPageType> pageTypes() const;
    /** The single alignment flags; empty means all. */
    ZREmptyMeansAllSet<ZRPageAlignment> intendedAlignments() const;

    /** True when the page types match (either side admits all or both name a common one) and so do the alignments. */
    bool matches(const ZRPageConstraint &other) const;
    /**
     * Whether @p pageType is admitted: false for an invalid (0) page type, true for every valid one
     * when the constraint admits all page types.
     */
    bool isPageType(const ZRPageType &pageType) const;
    /**
     * Whether the constraint names a flag of @p pageType explicitly: false for an invalid page type
     * and always false when the constraint admits all page types.
     */
    bool sharesPageType(const ZRPageType &pageType) const;

    /** "SeitenTypen: {<page type keys>} Alignment {<alignment keys>}", keys in set order. */
    QString describe() const;
    /**
     * "Page Constraints Okay" when the constraints match, otherwise
     * "Page Constraints differ: PageType: <0|1>, Alignment <0|1>".
     */
    QString describeDifference(const ZRPageConstraint &other) const;
    /**
     * Appends a "pagetype" child element per page type and an "intendedAlignment" child element per
     * alignment to @p element, each holding the key; a constraint that admits everything writes nothing.
     */
    void toXml(QDomElement &element) const;

    bool operator==(const ZRPageConstraint &other) const;
    bool operator!=(const ZRPageConstraint &other) const { return !(*this == other); }

private:
    QSharedDataPointer<ZRPageConstraintImpl> d;
};

#endif
