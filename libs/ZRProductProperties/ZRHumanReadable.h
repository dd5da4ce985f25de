#ifndef ZRHUMANREADABLE_H
#define ZRHUMANREADABLE_H

#include "zrproductproperties_export.h"

#include "ZRSingleton.h"

#include <QHash>
#include <QObject>
#include <QString>

/**
 * Display names of the frame, passe-partout and finishing templates of wall-decor products.
 * Reached as ZRSingleton<ZRHumanReadable>::instance(); the names are translated once, in the
 * language active when the table is built.
 */
class ZRPRODUCTPROPERTIES_EXPORT ZRHumanReadable : public QObject
{
    Q_OBJECT

public:
    ZRHumanReadable();
    ~ZRHumanReadable() override;

    /** The translated display name of the template @p key (matched case-sensitively); @p key itself when unknown. */
    QString templateName(const QString &key) const;

protected:
    void initTemplateNames();

private:
    QHash<QString, QString> templateNames;
};

extern template class ZRPRODUCTPROPERTIES_EXPORT ZRSingleton<ZRHumanReadable>;

#endif
