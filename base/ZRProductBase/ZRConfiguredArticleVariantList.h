#ifndef ZRCONFIGUREDARTICLEVARIANTLIST_H
#define ZRCONFIGUREDARTICLEVARIANTLIST_H

#include "zrproductbase_export.h"

#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>

/** One option of a product that the customer chooses, with its choices and the preselected one. */
class ZRPRODUCTBASE_EXPORT ZRConfiguredArticleVariant
{
public:
    ZRConfiguredArticleVariant() = default;
    ZRConfiguredArticleVariant(const QString &name, const QStringList &choices, const QString &defaultChoice);
    virtual ~ZRConfiguredArticleVariant();
    ZRConfiguredArticleVariant(const ZRConfiguredArticleVariant &) = default;
    ZRConfiguredArticleVariant &operator=(const ZRConfiguredArticleVariant &) = default;

    QString name() const { return m_name; }
    QStringList choices() const { return m_choices; }
    QString defaultChoice() const { return m_defaultChoice; }
    bool operator==(const ZRConfiguredArticleVariant &other) const;

private:
    QString m_name;
    QStringList m_choices;
    QString m_defaultChoice;
};

/**
 * The configurable options of a product, read from the "variants" child of its "product" element:
 * every "variant" child with the attributes "name", "choices" (comma-separated) and "default"
 * (default: the first choice). Variants without a name are skipped.
 */
class ZRPRODUCTBASE_EXPORT ZRConfiguredArticleVariantList : public QList<ZRConfiguredArticleVariant>
{
public:
    ZRConfiguredArticleVariantList() = default;
    explicit ZRConfiguredArticleVariantList(const QDomElement &productElement);
};

#endif
