#include "Candidate.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>

#include <map>
#include <stdexcept>

namespace bench {

namespace {

/**
 * Plain Image, Text and MouseArea items, drawn by the software renderer. The page comes from a
 * component that is kept (nothing is read then), from the engine's cache on disk, or is compiled
 * from its text each time.
 */
class QmlPeer : public Candidate
{
public:
    QmlPeer(const Site& site, QmlState state)
        : m_site(site)
        , m_state(state)
    {
        renewEngine();
    }

    ~QmlPeer() override
    {
        delete m_pHidden;
        delete m_pPage;
    }

    void open() override
    {
        m_window.setColor(Qt::black);
        m_window.resize(800, 480);
        QObject::connect(&m_window, &QQuickWindow::frameSwapped, [this] { m_painted = true; });
        m_window.show();
        settle();
    }

    void start(const std::string& page) override
    {
        load(page);
        open();
    }

    void activate() override
    {
        m_window.requestActivate();
        settle();
    }

    void load(const std::string& page) override { m_pPage = build(page, true); }

    void unload() override
    {
        delete m_pPage;
        m_pPage = nullptr;
        settle();
        if (m_state != QmlState::InMemory)
            renewEngine();
    }

    void keep(const std::string& first, const std::string& second) override
    {
        m_pHidden = build(first, false);
        m_pPage = build(second, true);
    }

    void switchPage() override
    {
        std::swap(m_pPage, m_pHidden);
        m_pPage->setVisible(true);
        m_pPage->setEnabled(true);
        m_pHidden->setEnabled(false);
        m_pHidden->setVisible(false);
    }

    void refill(const std::vector<std::string>& texts) override
    {
        QStringList list;
        list.reserve(static_cast<int>(texts.size()));
        for (const std::string& text : texts)
            list.append(QString::fromStdString(text));
        m_pPage->setProperty("texts", list);
    }

    void showTab(int tab) override { m_pPage->setProperty("tab", tab); }
    void setPercent(int percent) override { m_pPage->setProperty("percent", percent); }

    void press(const QPoint& place) override
    {
        sendMouse(&m_window, QEvent::MouseButtonPress, place, m_window.position() + place,
                  Qt::LeftButton);
    }

    void release(const QPoint& place) override
    {
        sendMouse(&m_window, QEvent::MouseButtonRelease, place, m_window.position() + place,
                  Qt::NoButton);
        if (onCell)
            tellCell();
    }

protected:
    QWindow* window() override { return &m_window; }

private:
    // the page's own handler, which has run by now, has left the cell's number there
    void tellCell()
    {
        const int cell = m_pPage->property("touched").toInt();
        m_pPage->setProperty("touched", -1);
        if (cell >= 0)
            onCell(cell / Site::listColumns, cell % Site::listColumns);
    }

    // An engine keeps the types that it has loaded, and trimming does not drop those with bindings
    // on every version of Qt. So a page that is to come from the disk gets an engine that does not
    // know it; what any earlier page of an application would have loaded is loaded here.
    void renewEngine()
    {
        m_pEngine = std::make_unique<QQmlEngine>();
        QQmlComponent earlier(m_pEngine.get());
        earlier.setData("import QtQuick 2.15\nItem { Image {} Text {} MouseArea {} }", QUrl());
        delete create(earlier);
    }

    QQuickItem* build(const std::string& page, bool visible)
    {
        QQuickItem* pItem = nullptr;
        if (m_state == QmlState::InMemory) {
            pItem = create(component(page));
        } else {
            QQmlComponent fresh(m_pEngine.get());
            fill(fresh, page);
            pItem = create(fresh);
        }
        pItem->setVisible(visible);
        pItem->setParentItem(m_window.contentItem());
        return pItem;
    }

    QQmlComponent& component(const std::string& page)
    {
        std::unique_ptr<QQmlComponent>& kept = m_components[page];
        if (!kept) {
            kept = std::make_unique<QQmlComponent>(m_pEngine.get());
            fill(*kept, page);
        }
        return *kept;
    }

    void fill(QQmlComponent& component, const std::string& page) const
    {
        const QString path = QString::fromStdString(m_site.qml(page));
        if (m_state != QmlState::Text) {
            component.loadUrl(QUrl::fromLocalFile(path));
            return;
        }
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            throw std::runtime_error("cannot read the QML page " + page);
        component.setData(file.readAll(), QUrl::fromLocalFile(path));
    }

    static QQuickItem* create(QQmlComponent& component)
    {
        auto* pItem = qobject_cast<QQuickItem*>(component.create());
        if (!pItem)
            throw std::runtime_error(component.errorString().toStdString());
        QQmlEngine::setObjectOwnership(pItem, QQmlEngine::CppOwnership);
        return pItem;
    }

    const Site& m_site;
    QmlState m_state;
    std::unique_ptr<QQmlEngine> m_pEngine;
    QQuickWindow m_window;
    std::map<std::string, std::unique_ptr<QQmlComponent>> m_components;
    QQuickItem* m_pPage = nullptr;
    QQuickItem* m_pHidden = nullptr;
};

} // namespace

std::unique_ptr<Candidate> makeQml(const Site& site, QmlState state)
{
    return std::make_unique<QmlPeer>(site, state);
}

} // namespace bench
