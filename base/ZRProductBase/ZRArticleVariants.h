#ifndef ZRARTICLEVARIANTS_H
#define ZRARTICLEVARIANTS_H

#include "zrproductbase_export.h"

#include <QHash>
#include <QString>

/**
 * The variant choices of an article, such as "color=white;size=large". Pairs are separated by ';'
 * or ',', a pair without '=' names an option with an empty choice; blanks around names and
 * choices are ignored. Valid exactly when it was built from a non-empty text.
 */
class ZRPRODUCTBASE_EXPORT ZRArticleVariants
{
public:
    ZRArticleVariants() = default;
    explicit ZRArticleVariants(const QString &text);
    virtual ~ZRArticleVariants();
    ZRArticleVariants(const ZRArticleVariants &) = default;
    ZRArticleVariants &operator=(const ZRArticleVariants &) = default;

    bool isValid() const { return m_valid; }
    QHash<QString, QString> choices() const { return m_choices; }
    QString choice(const QString &option) const { return m_choices.value(option); }
    /** The choices as "option=choice" pairs joined by ";", options in alphabetical order. */
    QString toString() const;

    bool operator==(const ZRArticleVariants &other) const
    {
        return m_valid == other.m_valid && m_choices == other.m_choices;
    }
    bool operator!=(const ZRArticleVariants &other) const { return !(*this == other); }

private:
    QHash<QString, QString> m_choices;
    bool m_valid = false;
};

#endif
