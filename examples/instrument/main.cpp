#include "InstrumentFrame.h"
#include "tour/Tour.h"

#include "components/ComponentFactory.h"
#include "resource/SoundFactory.h"
#include "resource/ZELResourceMgr.h"

#include <QApplication>
#include <QFont>

#include <cstdio>
#include <cstring>

using PANFx::Components::ComponentFactory;
using PANFx::Resource::SoundFactory;
using PANFx::Resource::ZELResourceMgr;

namespace {

const char usage[] =
    "usage: instrument [--rootfs DIR] [--tour DIR] [--help]\n"
    "  --rootfs DIR  directory that looks like the instrument's file system\n"
    "                (default: the copy in the build folder)\n"
    "  --tour DIR    walk through the pages, leave a picture of each in DIR, exit\n";

struct Options
{
    const char* pszRootfs = nullptr;
    const char* pszTour = nullptr;
    bool bHelp = false;
    bool bValid = true;
};

Options readOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        const bool bHasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--help") == 0)
            options.bHelp = true;
        else if (std::strcmp(argv[i], "--rootfs") == 0 && bHasValue)
            options.pszRootfs = argv[++i];
        else if (std::strcmp(argv[i], "--tour") == 0 && bHasValue)
            options.pszTour = argv[++i];
        else
            options.bValid = false;
    }
    return options;
}

void setDefault(const char* pszVariable, const char* pszValue)
{
    if (!qEnvironmentVariableIsSet(pszVariable))
        qputenv(pszVariable, pszValue);
}

void prepareEnvironment(const Options& options)
{
    if (options.pszRootfs != nullptr)
        qputenv("QTPANFX_SYSROOT", options.pszRootfs);
    setDefault("QTPANFX_SYSROOT", INSTRUMENT_ROOTFS);
    setDefault("QT_FONT_DPI", "72"); // a point of the style files is a pixel of the panel
    setDefault("QT_QPA_UPDATE_IDLE_TIME", "0");
    const bool bDisplay =
        qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (options.pszTour != nullptr && !bDisplay)
        setDefault("QT_QPA_PLATFORM", "offscreen");
}

// Reports are drawn in the instrument's font, which a development machine need not have.
void standInForPrintFont()
{
    QFont::insertSubstitutions(
        QStringLiteral("Droid Sans Mono"),
        {QStringLiteral("DejaVu Sans Mono"), QStringLiteral("WenQuanYi Micro Hei")});
}

int runTour(const char* pszDir)
{
    ZELResourceMgr::getInstance()->changeLocale(""); // whatever was chosen last
    InstrumentFrame frame;
    frame.setRemembersLanguage(false);
    frame.show();
    return Tour(frame, QString::fromLocal8Bit(pszDir)).run() ? 0 : 1;
}

int runPanel()
{
    InstrumentFrame frame;
    frame.show();
    frame.moveTo("home", true, true);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const Options options = readOptions(argc, argv);
    if (options.bHelp || !options.bValid) {
        std::fputs(usage, options.bHelp ? stdout : stderr);
        return options.bHelp ? 0 : 2;
    }
    prepareEnvironment(options);
    QApplication application(argc, argv);
    standInForPrintFont();
    const int nResult = options.pszTour != nullptr ? runTour(options.pszTour) : runPanel();
    ComponentFactory::destroyInstance();
    SoundFactory::destroyInstance();
    ZELResourceMgr::destroyInstance();
    return nResult;
}
