#include "ZRPageTiltRedirect.h"

ZRPageTiltRedirect::ZRPageTiltRedirect(int source, int target, int angleInvert)
    : m_sourcePageNr(source)
    , m_targetPageNr(target)
    , m_angleInvert(angleInvert)
{ }

bool ZRPageTiltRedirect::operator==(const ZRPageTiltRedirect &other) const
{
    return m_sourcePageNr == other.m_sourcePageNr && m_targetPageNr == other.m_targetPageNr
        && m_angleInvert == other.m_angleInvert;
}

bool ZRPageTiltRedirect::operator!=(const ZRPageTiltRedirect &other) const
{
    return !(*this == other);
}
