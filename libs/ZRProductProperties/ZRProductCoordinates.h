#ifndef ZRPRODUCTCOORDINATES_H
#define ZRPRODUCTCOORDINATES_H

#include "zrproductproperties_export.h"

#include <QRectF>

/**
 * Production coordinates of a rectangle given in tenths of a millimetre: the centre and the size in
 * production units (hundredths of a millimetre), rounded half away from zero; sizes are always even
 * and at least 2.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRProductCoordinates
{
public:
    static int posX(const QRectF &rect);
    static int posY(const QRectF &rect);
    static int posWidth(const QRectF &rect);
    static int posHeight(const QRectF &rect);
    static double posXMM(const QRectF &rect);
    static double posYMM(const QRectF &rect);
    static double posWidthMM(const QRectF &rect);
    static double posHeightMM(const QRectF &rect);
    /** Production units per millimetre: 100. */
    static int productionUPM();
};

#endif
