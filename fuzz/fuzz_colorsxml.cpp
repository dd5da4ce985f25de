// The colour table "colors.xml" of the colour categories, read from a resources directory of its own
// through ZRThematicCategory::readColorsXML() exactly as the library reads it.

#include "FuzzSupport.h"

#include "ZRDirectoryConfig.h"
#include "ZRThematicCategory.h"

#include <QColor>
#include <QFile>
#include <QTemporaryDir>

namespace {
QTemporaryDir *resources = nullptr;
} // namespace

void fuzzSetUp()
{
    // Lives until the process ends, like the directory configuration that points at it.
    resources = new QTemporaryDir;
    if (!resources->isValid())
        std::abort();
    ZRSingleton<ZRDirectoryConfig>::instance()->setResourcesDir(QDir(resources->path()));
}

void fuzzOneInput(const uint8_t *data, size_t size)
{
    QFile file(resources->filePath(QStringLiteral("colors.xml")));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        std::abort();
    file.write(reinterpret_cast<const char *>(data), qint64(size));
    file.close();

    const QHash<QString, QColor> colors = ZRThematicCategory::readColorsXML();
    for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
        // The sort key reads hue, saturation and value of whatever colour the table gave.
        it.value().isValid();
        it.value().hsvHue();
    }
}
