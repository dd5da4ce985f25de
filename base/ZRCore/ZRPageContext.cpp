#include "ZRPageContext.h"

#include <QDebug>

ZRPageContext::ZRPageContext(const ZRPageType &pageType, const ZRPageAlignment &alignment)
    : m_pageType(pageType)
    , m_alignment(alignment)
{ }

ZRPageContext::~ZRPageContext() = default;

bool ZRPageContext::matchesWith(const ZRPageContext &other) const
{
    return m_pageType.intersects(other.m_pageType.value()) && m_alignment.intersects(other.m_alignment.value());
}

bool ZRPageContext::operator==(const ZRPageContext &other) const
{
    return m_pageType == other.m_pageType && m_alignment == other.m_alignment;
}

QDebug operator<<(QDebug debug, const ZRPageContext &context)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZRPageContext(" << context.pageType().encodeCSV() << " | " << context.alignment().encodeCSV()
                    << ')';
    return debug;
}
