#include "ZRPageConstraintImpl.h"

#include "ZRXMLBuilder.h"

#include <QDomElement>
#include <QStringList>

ZRPageConstraintImpl::ZRPageConstraintImpl() = default;

ZRPageConstraintImpl::ZRPageConstraintImpl(const ZRPageContext &context)
{
    setPageTypes(context.pageType());
    setIntendedAlignment(context.alignment());
}

ZRPageConstraintImpl::ZRPageConstraintImpl(const ZRPageType &pageType, const ZRPageAlignment &alignment)
{
    setPageTypes(pageType);
    setIntendedAlignment(alignment);
}

ZRPageConstraintImpl::ZRPageConstraintImpl(const ZRPageType &pageType)
{
    setPageTypes(pageType);
}

ZRPageConstraintImpl::ZRPageConstraintImpl(const ZRPageConstraintImpl &other) = default;

ZRPageConstraintImpl::~ZRPageConstraintImpl() = default;

void ZRPageConstraintImpl::addPageType(const ZRPageType &pageType)
{
    m_pageTypes.unite(ZREmptyMeansAllSet<ZRPageType>::decompose(pageType));
}

void ZRPageConstraintImpl::setPageTypes(const ZRPageType &pageType)
{
    m_pageTypes.clear();
    addPageType(pageType);
}

void ZRPageConstraintImpl::addIntendedAlignment(const ZRPageAlignment &alignment)
{
    m_intendedAlignments.unite(ZREmptyMeansAllSet<ZRPageAlignment>::decompose(alignment));
}

void ZRPageConstraintImpl::setIntendedAlignment(const ZRPageAlignment &alignment)
{
    m_intendedAlignments.clear();
    addIntendedAlignment(alignment);
}

bool ZRPageConstraintImpl::matchesPageType(const ZRPageConstraintImpl &other) const
{
    if (other.m_pageTypes.isEmpty() || m_pageTypes.isEmpty())
        return true;
    return m_pageTypes.sharesRealKeysWith(other.m_pageTypes);
}

bool ZRPageConstraintImpl::matchesAlignment(const ZRPageConstraintImpl &other) const
{
    if (other.m_intendedAlignments.isEmpty() || m_intendedAlignments.isEmpty())
        return true;
    return m_intendedAlignments.sharesRealKeysWith(other.m_intendedAlignments);
}

bool ZRPageConstraintImpl::matches(const ZRPageConstraintImpl &other) const
{
    return matchesPageType(other) && matchesAlignment(other);
}

bool ZRPageConstraintImpl::isPageType(const ZRPageType &pageType) const
{
    if (!pageType.isValid())
        return false;
    if (m_pageTypes.isEmpty())
        return true;
    const auto flags = ZREmptyMeansAllSet<ZRPageType>::decompose(pageType);
    if (flags.isEmpty())
        return true;
    return m_pageTypes.sharesRealKeysWith(flags);
}

bool ZRPageConstraintImpl::sharesPageType(const ZRPageType &pageType) const
{
    if (!pageType.isValid())
        return false;
    return m_pageTypes.sharesRealKeysWith(ZREmptyMeansAllSet<ZRPageType>::decompose(pageType));
}

QString ZRPageConstraintImpl::describe() const
{
    QStringList pageTypeNames;
    for (const ZRPageType &pageType : m_pageTypes)
        pageTypeNames.append(pageType.encodeCSV());
    QStringList alignmentNames;
    for (const ZRPageAlignment &alignment : m_intendedAlignments)
        alignmentNames.append(alignment.encodeCSV());
    return QStringLiteral("SeitenTypen: {%1} Alignment {%2}")
        .arg(pageTypeNames.join(QLatin1String(", ")), alignmentNames.join(QLatin1String(", ")));
}

QString ZRPageConstraintImpl::describeDifference(const ZRPageConstraintImpl &other) const
{
    if (matches(other))
        return QStringLiteral("Page Constraints Okay");
    return QStringLiteral("Page Constraints differ: PageType: %1, Alignment %2")
        .arg(int(matchesPageType(other)))
        .arg(int(matchesAlignment(other)));
}

void ZRPageConstraintImpl::toXml(QDomElement &element) const
{
    for (const ZRPageType &pageType : m_pageTypes)
        ZRXMLBuilder::buildDomElement(element, QStringLiteral("pagetype"), pageType.encodeCSV());
    for (const ZRPageAlignment &alignment : m_intendedAlignments)
        ZRXMLBuilder::buildDomElement(element, QStringLiteral("intendedAlignment"), alignment.encodeCSV());
}

bool ZRPageConstraintImpl::operator==(const ZRPageConstraintImpl &other) const
{
    return m_pageTypes == other.m_pageTypes && m_intendedAlignments == other.m_intendedAlignments;
}
