// A program that only knows the installed package: it includes headers flat by class name and links
// ZR::ProductProperties (or the flags of pkg-config), which must bring the other libraries and Qt along.
// It loads the installed English translation as the README tells applications to.
#include <ZRDirectoryConfig.h>
#include <ZRInitializer.h>
#include <ZRJigType.h>
#include <ZRPageTypeList.h>
#include <ZRProductPropertiesInitializer.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QTranslator translator;
    const bool translated = translator.load(QLocale(QLocale::English), QStringLiteral("ZRProductProperties"),
                                QStringLiteral("_"), QStringLiteral(ZR_TRANSLATIONS_DIR))
        && QCoreApplication::installTranslator(&translator);

    const ZRJigType frame(QStringLiteral("Rahmen"));
    const ZRPageTypeList pages(QStringLiteral("cover_front, spine, content_pages"));
    int libraryInitializers = 0;
    for (ZRInitializerAbstract *initializer : ZRSingleton<ZRInitializer>::instance()->initializers())
        libraryInitializers += dynamic_cast<ZRProductPropertiesInitializer *>(initializer) != nullptr;
    std::printf(
        "%s %s %d %d\n", qPrintable(frame.encode()), qPrintable(frame.describe()), pages.size(), libraryInitializers);
    const bool english = translated && frame.describe() == QLatin1String("Frame");
    return frame.value() == ZRJigTypeFrame && english && pages.size() == 3 && libraryInitializers == 1 ? 0 : 1;
}
