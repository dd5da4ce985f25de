#include "ZRProductCoordinates.h"

namespace {
/** Tenths of a millimetre to production units, rounded half away from zero. */
int toProductionUnits(double tenthMillimetres)
{
    const double units = tenthMillimetres / 10.0 * 100.0;
    return int(units + (units < 0 ? -0.5 : 0.5));
}

int evenSize(double tenthMillimetres)
{
    int size = toProductionUnits(tenthMillimetres);
    if (size % 2 != 0)
        ++size;
    return size < 2 ? 2 : size;
}
} // namespace

int ZRProductCoordinates::posX(const QRectF &rect)
{
    return toProductionUnits(rect.x() + 0.5 * rect.width());
}

int ZRProductCoordinates::posY(const QRectF &rect)
{
    return toProductionUnits(rect.y() + 0.5 * rect.height());
}

int ZRProductCoordinates::posWidth(const QRectF &rect)
{
    return evenSize(rect.width());
}

int ZRProductCoordinates::posHeight(const QRectF &rect)
{
    return evenSize(rect.height());
}

double ZRProductCoordinates::posXMM(const QRectF &rect)
{
    return posX(rect) / 100.0;
}

double ZRProductCoordinates::posYMM(const QRectF &rect)
{
    return posY(rect) / 100.0;
}

double ZRProductCoordinates::posWidthMM(const QRectF &rect)
{
    return posWidth(rect) / 100.0;
}

double ZRProductCoordinates::posHeightMM(const QRectF &rect)
{
    return posHeight(rect) / 100.0;
}

int ZRProductCoordinates::productionUPM()
{
    return 100;
}
