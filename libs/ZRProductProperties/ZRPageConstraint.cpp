#include "ZRPageConstraint.h"

#include "ZRPageConstraintImpl.h"

ZRPageConstraint::ZRPageConstraint()
    : d(new ZRPageConstraintImpl)
{ }

ZRPageConstraint::ZRPageConstraint(const ZRPageContext &context)
    : d(new ZRPageConstraintImpl(context))
{ }

ZRPageConstraint::ZRPageConstraint(const ZRPageType &pageType, const ZRPageAlignment &alignment)
    : d(new ZRPageConstraintImpl(pageType, alignment))
{ }

ZRPageConstraint::ZRPageConstraint(const ZRPageType &pageType)
    : d(new ZRPageConstraintImpl(pageType))
{ }

ZRPageConstraint::ZRPageConstraint(const ZRPageConstraint &other) = default;
ZRPageConstraint::ZRPageConstraint(ZRPageConstraint &&other) noexcept = default;
ZRPageConstraint::~ZRPageConstraint() = default;
ZRPageConstraint &ZRPageConstraint::operator=(const ZRPageConstraint &other) = default;
ZRPageConstraint &ZRPageConstraint::operator=(ZRPageConstraint &&other) noexcept = default;

void ZRPageConstraint::addPageType(const ZRPageType &pageType)
{
    d->addPageType(pageType);
}

void ZRPageConstraint::setPageTypes(const ZRPageType &pageType)
{
    d->setPageTypes(pageType);
}

void ZRPageConstraint::addIntendedAlignment(const ZRPageAlignment &alignment)
{
    d->addIntendedAlignment(alignment);
}

void ZRPageConstraint::setIntendedAlignment(const ZRPageAlignment &alignment)
{
    d->setIntendedAlignment(alignment);
}

ZREmptyMeansAllSet<ZRPageType> ZRPageConstraint::pageTypes() const
{
    return d->pageTypes();
}

ZREmptyMeansAllSet<ZRPageAlignment> ZRPageConstraint::intendedAlignments() const
{
    return d->intendedAlignments();
}

bool ZRPageConstraint::matches(const ZRPageConstraint &other) const
{
    return d->matches(*other.d);
}

bool ZRPageConstraint::isPageType(const ZRPageType &pageType) const
{
    return d->isPageType(pageType);
}

bool ZRPageConstraint::sharesPageType(const ZRPageType &pageType) const
{
    return d->sharesPageType(pageType);
}

QString ZRPageConstraint::describe() const
{
    return d->describe();
}

QString ZRPageConstraint::describeDifference(const ZRPageConstraint &other) const
{
    return d->describeDifference(*other.d);
}

void ZRPageConstraint::toXml(QDomElement &element) const
{
    d->toXml(element);
}

bool ZRPageConstraint::operator==(const ZRPageConstraint &other) const
{
    return d == other.d || *d == *other.d;
}
