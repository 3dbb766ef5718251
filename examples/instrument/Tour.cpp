#include "Tour.h"

#include "InstrumentFrame.h"

#include "components/ZELComponent.h"
#include "resource/ZELResourceMgr.h"
#include "windows/ZELChildWindow.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>

#include <cstdio>

using PANFx::Components::ZELComponent;
using PANFx::Resource::ZELResourceMgr;
using PANFx::Windows::ZELChildWindow;

namespace {

const int settleLimit = 2000; // milliseconds

/// Lets everything happen that the last touch has set going.
void settle()
{
    QElapsedTimer clock;
    clock.start();
    bool bBusy = true;
    while (bBusy && clock.elapsed() < settleLimit)
        bBusy = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void sendMouse(QWidget* pWidget, QEvent::Type type, Qt::MouseButtons buttons)
{
    const QPoint centre = pWidget->rect().center();
    QMouseEvent event(type, centre, pWidget->mapToGlobal(centre), Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(pWidget, &event);
}

bool isPlain(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
    return true;
}

} // namespace

Tour::Tour(InstrumentFrame& frame, const QString& strDir)
    : m_frame(frame)
    , m_strDir(strDir)
{
    QDir().mkpath(m_strDir);
}

std::vector<Tour::Step> Tour::steps()
{
    std::vector<Step> list = {
        {"home", [this] { m_frame.moveTo("home", true, true); }, "home", ""},
        {"measure", [this] { touch("measure"); }, "measure", ""},
        {"conductivity", [this] { touch("cond"); }, "measure", ""},
        {"results", [this] { visit("results"); }, "results", ""},
        {"settings", [this] { visit("settings"); }, "settings", ""},
        {"back", [this] { touch("back"); }, "home", ""},
        {"korean", [this] { chooseLanguage("lang_kr"); }, "home", "kr"},
        {"korean-measure", [this] { visit("measure"); }, "measure", "kr"},
        {"korean-results", [this] { visit("results"); }, "results", "kr"},
        {"korean-settings", [this] { visit("settings"); }, "settings", "kr"},
    };
    const char* others[][2] = {{"german", "ger"},  {"french", "fra"},     {"spanish", "esp"},
                               {"italian", "ita"}, {"portuguese", "por"}, {"polish", "pol"},
                               {"russian", "rus"}, {"chinese", "chn"}};
    for (const auto& [pszName, pszLocale] : others) {
        const std::string strTile = std::string("lang_") + pszLocale;
        list.push_back({pszName, [this, strTile] { chooseLanguage(strTile); }, "home", pszLocale});
    }
    list.push_back({"english", [this] { chooseLanguage("lang_en"); }, "home", ""});
    return list;
}

bool Tour::run()
{
    int nFailed = 0;
    int nStep = 0;
    for (const Step& step : steps())
        if (!runStep(++nStep, step))
            ++nFailed;
    return nFailed == 0;
}

bool Tour::runStep(int nStep, const Step& step)
{
    step.action();
    settle();
    const char* pszName = step.strName.c_str();
    const QString strFile = m_strDir + QString::asprintf("/%02d-%s.png", nStep, pszName);
    const QImage image = m_frame.grab().toImage();
    std::string strFault = fault(step, image);
    if (strFault.empty() && !image.save(strFile))
        strFault = "cannot write " + strFile.toStdString();
    if (!strFault.empty()) {
        std::fprintf(stderr, "%02d %s: FAILED, %s\n", nStep, pszName, strFault.c_str());
        return false;
    }
    std::printf("%02d %s: page %s -> %s\n", nStep, pszName, step.strPage.c_str(),
                qPrintable(strFile));
    return true;
}

std::string Tour::fault(const Step& step, const QImage& image)
{
    const std::string strPage = pageOnScreen();
    const std::string strLocale = ZELResourceMgr::getInstance()->m_strLocale;
    if (strPage != step.strPage)
        return "page " + strPage + " is on screen, not " + step.strPage;
    if (strLocale != step.strLocale)
        return "the locale is \"" + strLocale + "\", not \"" + step.strLocale + "\"";
    if (isPlain(image))
        return "nothing is to be seen on page " + strPage;
    return "";
}

std::string Tour::pageOnScreen()
{
    ZELChildWindow* pPage = m_frame.getCurrentWindow();
    return pPage != nullptr ? pPage->m_strID : "none";
}

void Tour::touch(const std::string& strID)
{
    ZELChildWindow* pPage = m_frame.getCurrentWindow();
    ZELComponent* pComponent = pPage != nullptr ? pPage->getSubComponent(strID) : nullptr;
    if (pComponent == nullptr)
        return;
    sendMouse(pComponent->getQWidget(), QEvent::MouseButtonPress, Qt::LeftButton);
    sendMouse(pComponent->getQWidget(), QEvent::MouseButtonRelease, Qt::NoButton);
    settle();
}

void Tour::visit(const std::string& strTile)
{
    if (pageOnScreen() != "home")
        touch("back");
    touch(strTile);
}

void Tour::chooseLanguage(const std::string& strTile)
{
    visit("language");
    touch(strTile);
}
