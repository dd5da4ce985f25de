#ifndef ZRCSSSKINMANAGER_H
#define ZRCSSSKINMANAGER_H

#include "ZRSingleton.h"
#include "zrguiwidgets_export.h"

#include <QColor>

/**
 * The colours of the editor's current skin. Reached as ZRSingleton<ZRCSSSkinManager>::instance().
 * The background colour starts as the one named by the environment variable ZR_SKIN_BACKGROUND
 * (any notation QColor accepts), or light grey #f0f0f0.
 */
class ZRGUIWIDGETS_EXPORT ZRCSSSkinManager
{
public:
    ZRCSSSkinManager();
    virtual ~ZRCSSSkinManager();

    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);

private:
    mutable ZRReadWriteLock m_lock;
    QColor m_backgroundColor;
};

extern template class ZRGUIWIDGETS_EXPORT ZRSingleton<ZRCSSSkinManager>;

#endif
