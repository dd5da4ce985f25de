#ifndef ZRORIENTATION_H
#define ZRORIENTATION_H

#include "ZREnumWrapper.h"
#include "zrcore_export.h"

#include <QSize>

/** Orientation of an article. Keys: "portrait" 1, "landscape" 2, "quadratic" 4. */
enum ZROrientationEnum : int
{
    ZROrientationPortrait = 1,
    ZROrientationLandscape = 2,
    ZROrientationQuadratic = 4,
};

extern template class ZRCORE_EXPORT ZREnumWrapper<ZROrientationEnum>;

/** ZROrientation: a ZROrientationEnum flag set; built from comma-separated keys, case and blanks ignored. */
class ZRCORE_EXPORT ZROrientation : public ZREnumWrapper<ZROrientationEnum>
{
public:
    ZROrientation(ZROrientationEnum value = ZROrientationEnum(0));
    explicit ZROrientation(const QString &keys);
    /** The orientation of a width and height (equal sides are quadratic). */
    static ZROrientation fromSize(const QSize &size);
    bool isLandscape() const { return m_value == ZROrientationLandscape; }
    bool isPortrait() const { return m_value == ZROrientationPortrait; }
    bool isQuadratic() const { return m_value == ZROrientationQuadratic; }

protected:
    void fillTable(Table *table) const override;
};

#endif
