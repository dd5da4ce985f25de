#include "ZRJigEditorAbilities.h"

#include "ZRJigEditorAbilitiesImpl.h"

ZRJigEditorAbilities::ZRJigEditorAbilities()
    : d(new ZRJigEditorAbilitiesImpl)
{ }

ZRJigEditorAbilities::ZRJigEditorAbilities(const QDomElement &element)
    : d(new ZRJigEditorAbilitiesImpl(element))
{ }

ZRJigEditorAbilities::ZRJigEditorAbilities(const ZRJigEditorAbilities &other) = default;
ZRJigEditorAbilities::ZRJigEditorAbilities(ZRJigEditorAbilities &&other) noexcept = default;
ZRJigEditorAbilities::~ZRJigEditorAbilities() = default;
ZRJigEditorAbilities &ZRJigEditorAbilities::operator=(const ZRJigEditorAbilities &other) = default;
ZRJigEditorAbilities &ZRJigEditorAbilities::operator=(ZRJigEditorAbilities &&other) noexcept = default;

bool ZRJigEditorAbilities::isEnabled() const
{
    return d->isEnabled();
}

bool ZRJigEditorAbilities::alignable() const
{
    return d->alignable();
}

bool ZRJigEditorAbilities::rotatable() const
{
    return d->rotatable();
}

bool ZRJigEditorAbilities::fullOnEachPage() const
{
    return d->fullOnEachPage();
}

bool ZRJigEditorAbilities::requiresExactArticle() const
{
    return d->requiresExactArticle();
}

QStringList ZRJigEditorAbilities::allowedCategories(const ZRPageType &pageType) const
{
    return d->allowedCategories(pageType);
}

bool ZRJigEditorAbilities::operator==(const ZRJigEditorAbilities &other) const
{
    return d.constData() == other.d.constData() || *d == *other.d;
}

bool ZRJigEditorAbilities::operator!=(const ZRJigEditorAbilities &other) const
{
    return !(*this == other);
}
