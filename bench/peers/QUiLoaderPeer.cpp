#include "Candidate.h"
#include "peers/PlainWidgets.h"

#include <QDynamicPropertyChangeEvent>
#include <QFile>
#include <QProgressBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QUiLoader>
#include <QVariant>

#include <stdexcept>

namespace bench {

namespace {

std::string textProperty(const QObject& object, const char* name)
{
    return object.property(name).toString().toStdString();
}

/** The floor's own widgets, filled from the properties that the loader sets. */
class LoadedPicture : public PictureWidget
{
public:
    LoadedPicture(QWidget* pParent, PictureCache& pictures)
        : PictureWidget(pParent)
        , m_pictures(pictures)
    {
    }

protected:
    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::DynamicPropertyChange)
            m_pUp = m_pictures.get(textProperty(*this, "up"));
        return PictureWidget::event(pEvent);
    }

private:
    PictureCache& m_pictures;
};

class LoadedButton : public ButtonWidget
{
public:
    LoadedButton(QWidget* pParent, PictureCache& pictures)
        : ButtonWidget(pParent)
        , m_pictures(pictures)
    {
    }

protected:
    bool event(QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::DynamicPropertyChange)
            take(static_cast<QDynamicPropertyChangeEvent*>(pEvent)->propertyName());
        return ButtonWidget::event(pEvent);
    }

private:
    void take(const QByteArray& name)
    {
        if (name == "up")
            m_pUp = m_pictures.get(textProperty(*this, "up"));
        else if (name == "down")
            m_pDown = m_pictures.get(textProperty(*this, "down"));
        else if (name == "title")
            m_title = property("title").toString();
    }

    PictureCache& m_pictures;
};

class Loader : public QUiLoader
{
public:
    explicit Loader(PictureCache& pictures)
        : m_pictures(pictures)
    {
        clearPluginPaths();
    }

    QWidget* createWidget(const QString& className, QWidget* pParent, const QString& name) override
    {
        if (className == QLatin1String("BenchPicture"))
            return new LoadedPicture(pParent, m_pictures);
        if (className == QLatin1String("BenchButton"))
            return new LoadedButton(pParent, m_pictures);
        return QUiLoader::createWidget(className, pParent, name);
    }

private:
    PictureCache& m_pictures;
};

class QUiLoaderPeer : public WidgetCandidate
{
public:
    QUiLoaderPeer(const Site& site, bool customClasses)
        : m_site(site)
        , m_bCustomClasses(customClasses)
    {
    }

    void open() override { openWindow(m_pWindow.get()); }

    void start(const std::string& page) override
    {
        load(page);
        open();
    }

    void load(const std::string& page) override
    {
        m_pPage = build(page);
        m_pPage->show();
    }

    void unload() override
    {
        delete m_pPage;
        m_pPage = nullptr;
        settle();
    }

    void keep(const std::string& first, const std::string& second) override
    {
        m_pHidden = build(first);
        m_pPage = build(second);
        m_pPage->show();
    }

    void switchPage() override
    {
        std::swap(m_pPage, m_pHidden);
        m_pPage->show();
        m_pPage->setEnabled(true);
        m_pHidden->setDisabled(true);
        m_pHidden->hide();
    }

    void refill(const std::vector<std::string>& texts) override
    {
        auto* pTable = m_pPage->findChild<QTableWidget*>();
        std::size_t i = 0;
        for (int row = 0; row < Site::listRows; ++row) {
            for (int column = 0; column < Site::listColumns; ++column)
                pTable->item(row, column)->setText(QString::fromStdString(texts[i++]));
        }
    }

    void showTab(int tab) override { m_pPage->findChild<QTabWidget*>()->setCurrentIndex(tab); }
    void setPercent(int percent) override
    {
        m_pPage->findChild<QProgressBar*>()->setValue(percent);
    }

private:
    QWidget* build(const std::string& page)
    {
        QFile file(QString::fromStdString(m_site.designer(page, m_bCustomClasses)));
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("cannot read the form " + page);
        QWidget* pPage = m_loader.load(&file, m_pWindow.get());
        if (!pPage)
            throw std::runtime_error("cannot load the form " + page);
        if (auto* pTable = onCell ? pPage->findChild<QTableWidget*>() : nullptr)
            QObject::connect(pTable, &QTableWidget::cellClicked, pTable,
                             [this](int row, int column) { onCell(row, column); });
        return pPage;
    }

    const Site& m_site;
    bool m_bCustomClasses;
    PictureCache m_pictures;
    Loader m_loader{m_pictures};
    std::unique_ptr<QWidget> m_pWindow = makeWindow();
    QWidget* m_pPage = nullptr;
    QWidget* m_pHidden = nullptr;
};

} // namespace

std::unique_ptr<Candidate> makeQUiLoader(const Site& site, bool customClasses)
{
    return std::make_unique<QUiLoaderPeer>(site, customClasses);
}

} // namespace bench
