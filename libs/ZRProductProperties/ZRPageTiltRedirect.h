#ifndef ZRPAGETILTREDIRECT_H
#define ZRPAGETILTREDIRECT_H

#include "zrproductproperties_export.h"

/**
 * One tilt redirect: the page @c targetPageNr takes over the rotation of the page @c sourcePageNr,
 * inverted when @c angleInvert says so. Page -1 is allowed.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRPageTiltRedirect
{
public:
    /** Source, target and angle inversion all 0. */
    ZRPageTiltRedirect() = default;
    ZRPageTiltRedirect(int source, int target, int angleInvert);

    int sourcePageNr() const { return m_sourcePageNr; }
    int targetPageNr() const { return m_targetPageNr; }
    int angleInvert() const { return m_angleInvert; }

    bool operator==(const ZRPageTiltRedirect &other) const;
    bool operator!=(const ZRPageTiltRedirect &other) const;

private:
    int m_sourcePageNr = 0;
    int m_targetPageNr = 0;
    int m_angleInvert = 0;
};

#endif
