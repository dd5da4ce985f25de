#include "ZRArticleVariants.h"

#include <QStringList>

ZRArticleVariants::ZRArticleVariants(const QString &text)
    : m_valid(!text.isEmpty())
{
    // Pairs are separated by ';' or ','; empty pairs are skipped. Every surrounding of every product
    // description is read through here, most of them with an empty text.
    const QStringView all(text);
    qsizetype start = 0;
    while (start < all.size()) {
        qsizetype end = start;
        while (end < all.size() && all.at(end) != u';' && all.at(end) != u',')
            ++end;
        const QStringView pair = all.sliced(start, end - start);
        start = end + 1;
        const qsizetype equals = pair.indexOf(u'=');
        const QStringView option = (equals < 0 ? pair : pair.first(equals)).trimmed();
        if (option.isEmpty())
            continue;
        m_choices.insert(option.toString(), equals < 0 ? QString() : pair.sliced(equals + 1).trimmed().toString());
    }
}

ZRArticleVariants::~ZRArticleVariants() = default;

QString ZRArticleVariants::toString() const
{
    QStringList options = m_choices.keys();
    options.sort();
    QStringList pairs;
    for (const QString &option : std::as_const(options))
        pairs.append(option + QLatin1Char('=') + m_choices.value(option));
    return pairs.join(QLatin1Char(';'));
}
