#include "ZRProductClassificationManager.h"

#include <QSet>

#include <cmath>
#include <limits>

ZRProductClassificationManager::ZRProductClassificationManager() = default;

ZRProductClassificationManager::ZRProductClassificationManager(const QList<ZRProductClassification> &classifications)
    : m_classifications(classifications)
{ }

ZRProductClassificationManager::ZRProductClassificationManager(const ZRProductClassificationManager &other) = default;
ZRProductClassificationManager::ZRProductClassificationManager(
    ZRProductClassificationManager &&other) noexcept = default;
ZRProductClassificationManager::~ZRProductClassificationManager() = default;
ZRProductClassificationManager &ZRProductClassificationManager::operator=(const ZRProductClassificationManager &other)
    = default;
ZRProductClassificationManager &ZRProductClassificationManager::operator=(
    ZRProductClassificationManager &&other) noexcept = default;

const ZRProductClassification *ZRProductClassificationManager::find(const ZRProductType &type) const
{
    for (const ZRProductClassification &classification : m_classifications) {
        if (classification.productType() == type)
            return &classification;
    }
    return nullptr;
}

ZRProductType ZRProductClassificationManager::closestProduct(const ZRProductType &type, const QString &groupValue) const
{
    const ZRProductClassification *reference = find(type);
    const double referenceDiagonal = reference ? reference->sizeDiagonal() : 0.0;

    const ZRProductClassificationGroup group(groupValue);
    double bestDistance = std::numeric_limits<double>::max();
    ZRProductType result;
    for (const ZRProductClassification &classification : m_classifications) {
        if (classification.group() != group)
            continue;
        const double distance = std::abs(classification.sizeDiagonal() - referenceDiagonal);
        // Strictly nearer only, so the earliest of equally near sizes stays.
        if (bestDistance > distance) {
            bestDistance = distance;
            result = classification.productType();
        }
    }
    return result;
}

ZRProductType ZRProductClassificationManager::type(
    const ZRProductClassificationGroup &group, const QString &sizeName, const ZRDistanceUnit &unit) const
{
    for (const ZRProductClassification &classification : m_classifications) {
        if (classification.group() == group && classification.visibleName(unit) == sizeName)
            return classification.productType();
    }
    return ZRProductType();
}

QString ZRProductClassificationManager::classificationName(const ZRProductType &type, const ZRDistanceUnit &unit) const
{
    const ZRProductClassification *classification = find(type);
    return classification ? classification->visibleName(unit) : QString();
}

ZRProductClassificationGroup ZRProductClassificationManager::classificationGroup(const ZRProductType &type) const
{
    const ZRProductClassification *classification = find(type);
    return classification ? classification->group() : ZRProductClassificationGroup();
}

QStringList ZRProductClassificationManager::classificationNames(
    const ZRProductClassificationGroup &group, const ZRDistanceUnit &unit) const
{
    QStringList names;
    for (const ZRProductClassification &classification : m_classifications) {
        if (classification.group() == group)
            names.append(classification.visibleName(unit));
    }
    return names;
}

QList<ZRProductClassificationGroup> ZRProductClassificationManager::classificationGroups() const
{
    QList<ZRProductClassificationGroup> groups;
    QSet<ZRProductClassificationGroup> seen;
    for (const ZRProductClassification &classification : m_classifications) {
        const ZRProductClassificationGroup group = classification.group();
        if (!seen.contains(group)) {
            seen.insert(group);
            groups.append(group);
        }
    }
    return groups;
}
