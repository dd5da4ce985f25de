// A program that only knows the installed package: it includes headers flat by class name and links
// ZR::ProductProperties, which must bring the other libraries and Qt along.
#include <ZRDirectoryConfig.h>
#include <ZRInitializer.h>
#include <ZRJigType.h>
#include <ZRPageTypeList.h>
#include <ZRProductPropertiesInitializer.h>

#include <cstdio>

int main()
{
    const ZRJigType frame(QStringLiteral("Rahmen"));
    const ZRPageTypeList pages(QStringLiteral("cover_front, spine, content_pages"));
    int libraryInitializers = 0;
    for (ZRInitializerAbstract *initializer : ZRSingleton<ZRInitializer>::instance()->initializers())
        libraryInitializers += dynamic_cast<ZRProductPropertiesInitializer *>(initializer) != nullptr;
    std::printf("%s %d %d\n", qPrintable(frame.encode()), pages.size(), libraryInitializers);
    return frame.value() == ZRJigTypeFrame && pages.size() == 3 && libraryInitializers == 1 ? 0 : 1;
}
