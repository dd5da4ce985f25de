#ifndef ZRSPIRALCONFIG_H
#define ZRSPIRALCONFIG_H

#include "ZRCompactMap.h"
#include "zrproductproperties_export.h"

#include <QDomElement>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

/**
 * The spiral binding of a calendar or notebook: a row of wire loops, optionally with a gap in the
 * middle for a hanging hook. Besides its geometry it renders the loop strip and the hook image for
 * the editor; both images are made on first use and cached, so they belong to the user-interface
 * thread.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRSpiralConfig
{
public:
    /** No loops and no hook; loops 54 wide, 150 high, 30 apart, drawn from "spiralbinding-one-loop-vertical.png". */
    ZRSpiralConfig();
    /**
     * Reads a "spirals" element: the integer attributes "count", "hookWidth", "hookHeight" (default 0),
     * "loopHeight" (150), "loopWidth" (54), "loopDistance" (30), the loop picture "variant", and the
     * colour variants from the "loopImage" children of its first "loopImages" child ("variant" and
     * "imagePath"; entries with an empty one are skipped, a later variant replaces an earlier one).
     * A null element gives the defaults.
     */
    explicit ZRSpiralConfig(const QDomElement &element);
    virtual ~ZRSpiralConfig();

    bool hasSpiral() const;
    int spiralCount() const { return m_spiralCount; }
    /** True when the hook has a non-zero width and height. */
    bool hasHook() const;
    int hookWidth() const { return m_hookWidth; }
    int hookHeight() const { return m_hookHeight; }

    /**
     * The extent of the loop row: count loops plus the distances between them along the row, the loop
     * height across. A count of 0 gives a length of minus one distance; a length beyond the range of
     * int is held to its nearest end; an orientation that is neither horizontal nor vertical gives
     * QSize(-1, -1).
     */
    QSize spiralSize(Qt::Orientation orientation) const;

    /**
     * Uses the loop picture of the colour variant @p color; an unknown variant changes nothing. A loop
     * picture that is already cached stays in use.
     */
    void setSpiralColor(const QString &color);

    /**
     * The loop picture from the thumbnails directory, scaled to loop width by loop height. A null
     * image when it cannot be loaded or the loop has more than ZRXMLLimits::maxImagePixels pixels.
     */
    QImage bindingLoopImage() const;
    /**
     * A horizontal strip of @p count loops on a transparent background, leaving out the loops that
     * fall into the hook gap in the middle. A null image for no loops, a missing loop picture or a
     * strip of more than ZRXMLLimits::maxImagePixels pixels.
     */
    QImage spiralBindingLoopHorizontal(int count) const;
    /** The horizontal strip turned by 90 degrees. */
    QImage spiralBindingLoopVertical(int count) const;
    /** The strip of spiralCount() loops in @p orientation; a null image for any other orientation. */
    QImage spiralImage(Qt::Orientation orientation) const;
    /**
     * An ellipse in the skin's background colour covering hook width by twice the hook height, on a
     * transparent background. It is redrawn when the hook size or the skin colour has changed. A null
     * image when the hook has no area or more than ZRXMLLimits::maxImagePixels pixels.
     */
    QImage spiralHookImage() const;

    /** Compares the loop count and the hook size only; loop geometry, pictures and colours are ignored. */
    bool operator==(const ZRSpiralConfig &other) const;
    bool operator!=(const ZRSpiralConfig &other) const;
    /**
     * Less when the count is smaller, or this hook width is smaller than the other's hook height, or
     * this hook height is smaller than the other's hook height.
     */
    bool operator<(const ZRSpiralConfig &other) const;

private:
    mutable QImage m_loopImage;
    mutable QImage m_hookImage;
    int m_spiralCount = 0;
    int m_hookWidth = 0;
    int m_hookHeight = 0;
    int m_loopHeight = 150;
    int m_loopWidth = 54;
    int m_loopDistance = 30;
    QString m_loopImageName;
    ZRCompactMap<QString, QString> m_loopImagesByColor;
};

#endif
