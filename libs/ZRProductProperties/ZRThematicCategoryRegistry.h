#ifndef ZRTHEMATICCATEGORYREGISTRY_H
#define ZRTHEMATICCATEGORYREGISTRY_H

#include "ZRSingleton.h"
#include "zrproductproperties_export.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>

class ZRThematicCategoryRegistry;

extern template class ZRPRODUCTPROPERTIES_EXPORT ZRSingleton<ZRThematicCategoryRegistry>;

/**
 * The process-wide table behind every ZRThematicCategory: hands out the integer key of a category
 * name and keeps its internal and visible name. Reached as ZRSingleton<ZRThematicCategoryRegistry>::instance().
 *
 * Names are matched without regard to letter case, and also against the visible names already
 * known, so a name in its translated form joins the category it is the translation of. Keys start
 * at 1 (0 is the empty category), are never removed and are valid only in this process.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRThematicCategoryRegistry : public ZRSingleton<ZRThematicCategoryRegistry>
{
public:
    /** An empty registry; use instance() for the process-wide one. */
    ZRThematicCategoryRegistry();
    ~ZRThematicCategoryRegistry() override;

    /**
     * The key of @p name, created on first sight with the name's translation in the current locale
     * as visible name. The empty name gets a key of its own, never 0.
     */
    int key(const QString &name);
    /** The internal name of @p key; empty for an unknown key and for 0. */
    QString internalName(const int &key) const;
    /** The visible name of @p key; empty for an unknown key and for 0. */
    QString visibleName(const int &key) const;
    /**
     * Replaces the visible name of @p key; an empty @p name restores the translation of the internal
     * name in the current locale. The old visible name keeps finding the key, the new one does not.
     * Takes the registry's lock like key(), so a rename may run while other threads look up or add names.
     */
    void setVisibleName(const int &key, const QString &name);
    /** Every key handed out so far, in ascending order. */
    QList<int> keys() const;

protected:
    /**
     * The key for a new name whose lower-cased visible name is @p lowerVisibleName: the key of a
     * category with that visible name (unless it is an internal frame or mask category), else a new
     * key. Called with the mutex held.
     */
    int generateKey(const QString &lowerVisibleName);

private:
    int m_nextKey = 1;
    mutable QMutex m_mutex;
    QHash<int, QString> m_internalNames;
    QHash<int, QString> m_visibleNames;
    QHash<QString, int> m_keysByInternalName;
    QHash<QString, int> m_keysByVisibleName;
};

#endif
