#include "ZRProductEditorAbilities.h"

#include "ZRProductEditorAbilitiesImpl.h"

ZRProductEditorAbilities::ZRProductEditorAbilities()
    : d(new ZRProductEditorAbilitiesImpl)
{ }

ZRProductEditorAbilities::ZRProductEditorAbilities(const QDomElement &element)
    : d(new ZRProductEditorAbilitiesImpl(element))
{ }

ZRProductEditorAbilities::ZRProductEditorAbilities(const ZRProductEditorAbilities &other) = default;
ZRProductEditorAbilities::ZRProductEditorAbilities(ZRProductEditorAbilities &&other) noexcept = default;
ZRProductEditorAbilities::~ZRProductEditorAbilities() = default;
ZRProductEditorAbilities &ZRProductEditorAbilities::operator=(const ZRProductEditorAbilities &other) = default;
ZRProductEditorAbilities &ZRProductEditorAbilities::operator=(ZRProductEditorAbilities &&other) noexcept = default;

ZRPageNamingStyle ZRProductEditorAbilities::pageNamingStyle() const
{
    return d->pageNamingStyle();
}

ZRUserPageTiltConfig ZRProductEditorAbilities::userPageTiltConfig() const
{
    return d->userPageTiltConfig();
}

bool ZRProductEditorAbilities::hasAssistant() const
{
    return d->hasAssistant();
}

bool ZRProductEditorAbilities::isConvertable() const
{
    return d->isConvertable();
}

bool ZRProductEditorAbilities::showChangeBaseDesignButton() const
{
    return d->showChangeBaseDesignButton();
}

int ZRProductEditorAbilities::editorStartPage() const
{
    return d->editorStartPage();
}

ZRDateRangeConstraint ZRProductEditorAbilities::dateRangeConstraint() const
{
    return d->dateRangeConstraint();
}

bool ZRProductEditorAbilities::isJigEnabled(const ZRJigType &jigType) const
{
    return d->isJigEnabled(jigType);
}

bool ZRProductEditorAbilities::requiresExactArticle(const ZRJigType &jigType) const
{
    return d->requiresExactArticle(jigType);
}

QStringList ZRProductEditorAbilities::allowedCategories(const ZRJigType &jigType, const ZRPageType &pageType) const
{
    return d->allowedCategories(jigType, pageType);
}

bool ZRProductEditorAbilities::canAlignBackgrounds() const
{
    return d->canAlignBackgrounds();
}

bool ZRProductEditorAbilities::canRotateBackgrounds() const
{
    return d->canRotateBackgrounds();
}

bool ZRProductEditorAbilities::fullBackgroundOnEachPage() const
{
    return d->fullBackgroundOnEachPage();
}

bool ZRProductEditorAbilities::operator==(const ZRProductEditorAbilities &other) const
{
    return d.constData() == other.d.constData() || *d == *other.d;
}

bool ZRProductEditorAbilities::operator!=(const ZRProductEditorAbilities &other) const
{
    return !(*this == other);
}
