#include "ZRSpiralConfig.h"

#include "ZRCSSSkinManager.h"
#include "ZRDirectoryConfig.h"
#include "ZRXMLDiagnostics.h"
#include "ZRXMLLimits.h"
#include "ZRXMLParser.h"
#include "ZRXMLStringPool.h"
#include "ZRXMLVocabulary.h"

#include <QMutex>
#include <QMutexLocker>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <limits>

namespace {
const ZRXMLVocabulary vocabulary(QStringLiteral("spirals"),
    { QStringLiteral("count"), QStringLiteral("hookWidth"), QStringLiteral("hookHeight"), QStringLiteral("loopHeight"),
        QStringLiteral("loopWidth"), QStringLiteral("loopDistance"), QStringLiteral("variant") },
    { QStringLiteral("loopImages") });
const ZRXMLVocabulary loopImagesVocabulary(QStringLiteral("loopImages"), {}, { QStringLiteral("loopImage") });
const ZRXMLVocabulary loopImageVocabulary(
    QStringLiteral("loopImage"), { QStringLiteral("variant"), QStringLiteral("imagePath") }, {});

QString defaultLoopImageName()
{
    return QStringLiteral("spiralbinding-one-loop-vertical.png");
}

/** True for an image of @p width x @p height that is not empty and within the pixel budget. */
bool isDrawable(qint64 width, qint64 height)
{
    return width > 0 && height > 0 && width <= ZRXMLLimits::maxImagePixels / height;
}
} // namespace

ZRSpiralConfig::ZRSpiralConfig()
    : m_loopImageName(defaultLoopImageName())
{ }

ZRSpiralConfig::ZRSpiralConfig(const QDomElement &element)
    : m_spiralCount(ZRXMLParser::intAttribute(element, QStringLiteral("count"), 0))
    , m_hookWidth(ZRXMLParser::intAttribute(element, QStringLiteral("hookWidth"), 0))
    , m_hookHeight(ZRXMLParser::intAttribute(element, QStringLiteral("hookHeight"), 0))
    , m_loopHeight(ZRXMLParser::intAttribute(element, QStringLiteral("loopHeight"), 150))
    , m_loopWidth(ZRXMLParser::intAttribute(element, QStringLiteral("loopWidth"), 54))
    , m_loopDistance(ZRXMLParser::intAttribute(element, QStringLiteral("loopDistance"), 30))
    , m_loopImageName(ZRXMLStringPool::share(
          ZRXMLParser::attribute(element, QStringLiteral("variant"), defaultLoopImageName(), true)))
{
    vocabulary.check(element);
    const QDomElement loopImages = element.firstChildElement(loopImagesVocabulary.element());
    loopImagesVocabulary.check(loopImages);
    for (QDomElement loopImage = loopImages.firstChildElement(loopImageVocabulary.element()); !loopImage.isNull();
         loopImage = loopImage.nextSiblingElement(loopImageVocabulary.element())) {
        loopImageVocabulary.check(loopImage);
        const QString variant = ZRXMLParser::attribute(loopImage, QStringLiteral("variant"), QString(), true);
        const QString imagePath = ZRXMLParser::attribute(loopImage, QStringLiteral("imagePath"), QString(), true);
        if (variant.isEmpty() || imagePath.isEmpty()) {
            if (ZRXMLDiagnostics::isActive()) {
                ZRXMLDiagnostics::report(ZRXMLFinding::Warning, QStringLiteral("ignored-element"),
                    QStringLiteral("<loopImage> without a 'variant' and an 'imagePath' is ignored"), loopImage);
            }
            continue;
        }
        m_loopImagesByColor.insert(ZRXMLStringPool::share(variant), ZRXMLStringPool::share(imagePath));
    }
    m_loopImagesByColor.squeeze();
}

ZRSpiralConfig::~ZRSpiralConfig() = default;

bool ZRSpiralConfig::hasSpiral() const
{
    return m_spiralCount > 0;
}

bool ZRSpiralConfig::hasHook() const
{
    return m_hookWidth != 0 && m_hookHeight != 0;
}

QSize ZRSpiralConfig::spiralSize(Qt::Orientation orientation) const
{
    // Counted in 64 bits and held to the range of int, so that absurd counts or sizes in a description
    // give the nearest size rather than overflow.
    const qint64 exactLength = qint64(m_spiralCount) * m_loopWidth + (qint64(m_spiralCount) - 1) * m_loopDistance;
    const int length
        = int(std::clamp<qint64>(exactLength, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
    switch (orientation) {
    case Qt::Horizontal:
        return QSize(length, m_loopHeight);
    case Qt::Vertical:
        return QSize(m_loopHeight, length);
    }
    return QSize(-1, -1);
}

void ZRSpiralConfig::setSpiralColor(const QString &color)
{
    // Only named pictures are stored: an empty one means the colour has none.
    const QString imagePath = m_loopImagesByColor.value(color);
    if (!imagePath.isEmpty())
        m_loopImageName = imagePath;
}

QImage ZRSpiralConfig::bindingLoopImage() const
{
    if (m_loopImage.isNull()) {
        const QDir directory = ZRSingleton<ZRDirectoryConfig>::instance()->glimmerThumbnailsDirectory(false);
        const QImage loaded
            = isDrawable(m_loopWidth, m_loopHeight) ? QImage(directory.absoluteFilePath(m_loopImageName)) : QImage();
        if (!loaded.isNull())
            m_loopImage
                = loaded.scaled(QSize(m_loopWidth, m_loopHeight), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return m_loopImage;
}

QImage ZRSpiralConfig::spiralBindingLoopHorizontal(int count) const
{
    const QImage loop = bindingLoopImage();
    const qint64 exactWidth = (qint64(count) - 1) * m_loopWidth + qint64(count) * loop.width();
    const int height = loop.height();
    if (!isDrawable(exactWidth, height))
        return QImage();
    const int width = int(exactWidth);

    QImage strip(width, height, QImage::Format_ARGB32_Premultiplied);
    // A strip too large to allocate has no loops to draw.
    if (strip.isNull())
        return QImage();
    strip.fill(Qt::transparent);

    // Loops overlapping the middle, where the hook hangs, are left out.
    const int gapStart = static_cast<int>(width * 0.5 - m_hookWidth * 0.5);
    const int gapEnd = static_cast<int>(m_hookWidth * 0.5 + width * 0.5);
    QPainter painter(&strip);
    for (int i = 0; i < count; ++i) {
        // The gap between two loops is one loop width wide; the loop distance only sizes spiralSize().
        const int x = (loop.width() + m_loopWidth) * i;
        if (!hasHook() || x + m_loopWidth < gapStart || x > gapEnd)
            painter.drawImage(QPoint(x, 0), loop);
    }
    painter.end();
    return strip;
}

QImage ZRSpiralConfig::spiralBindingLoopVertical(int count) const
{
    return spiralBindingLoopHorizontal(count).transformed(QTransform().rotate(90, Qt::ZAxis), Qt::SmoothTransformation);
}

QImage ZRSpiralConfig::spiralImage(Qt::Orientation orientation) const
{
    switch (orientation) {
    case Qt::Horizontal:
        return spiralBindingLoopHorizontal(m_spiralCount);
    case Qt::Vertical:
        return spiralBindingLoopVertical(m_spiralCount);
    }
    return QImage();
}

QImage ZRSpiralConfig::spiralHookImage() const
{
    // One remembered colour for all spirals: a skin change is noticed by the first spiral that draws
    // its hook afterwards. Spirals draw their hooks from any thread, so the colour has a lock.
    static QColor lastBackgroundColor;
    static QMutex lastBackgroundColorMutex;

    const QColor color = ZRSingleton<ZRCSSSkinManager>::instance()->backgroundColor();
    if (!isDrawable(m_hookWidth, 2 * qint64(m_hookHeight)))
        return QImage();
    const QSize size(m_hookWidth, 2 * m_hookHeight);
    bool redraw = m_hookImage.isNull() || m_hookImage.size() != size;
    {
        QMutexLocker locker(&lastBackgroundColorMutex);
        if (color != lastBackgroundColor)
            redraw = true;
        if (redraw)
            lastBackgroundColor = color;
    }
    if (redraw) {
        m_hookImage = QImage(size, QImage::Format_ARGB32_Premultiplied);
        if (m_hookImage.isNull())
            return m_hookImage;
        m_hookImage.fill(Qt::transparent);

        QPainter painter(&m_hookImage);
        painter.setClipRect(m_hookImage.rect());
        painter.setBrush(color);
        painter.setPen(Qt::NoPen);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.drawEllipse(QRect(QPoint(0, 0), QPoint(m_hookWidth - 3, 2 * m_hookHeight - 3)));
    }
    return m_hookImage;
}

bool ZRSpiralConfig::operator==(const ZRSpiralConfig &other) const
{
    return m_spiralCount == other.m_spiralCount && m_hookWidth == other.m_hookWidth
        && m_hookHeight == other.m_hookHeight;
}

bool ZRSpiralConfig::operator!=(const ZRSpiralConfig &other) const
{
    return !(*this == other);
}

bool ZRSpiralConfig::operator<(const ZRSpiralConfig &other) const
{
    // Comparing this hook width with the other's hook height is intended; existing sort orders depend on it.
    return m_spiralCount < other.m_spiralCount || m_hookWidth < other.m_hookHeight || m_hookHeight < other.m_hookHeight;
}
