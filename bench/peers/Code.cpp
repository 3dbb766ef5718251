#include "Candidate.h"
#include "peers/PlainWidgets.h"

#include <QPalette>

#include <cstring>
#include <pugixml.hpp>
#include <stdexcept>

namespace bench {

namespace {

QRect placeOf(const pugi::xml_node& node)
{
    return {node.attribute("x").as_int(), node.attribute("y").as_int(),
            node.attribute("width").as_int(), node.attribute("height").as_int()};
}

/**
 * The floor: what somebody writes by hand who wants these widgets from that file and nothing
 * else. No ids, no languages, no styles, no navigation, no log.
 */
class Code : public WidgetCandidate
{
public:
    Code(const Site& site, bool qtButtons)
        : m_site(site)
        , m_bQtButtons(qtButtons)
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

    // the calls that a change of page makes in the library, and nothing beside them
    void switchPage() override
    {
        std::swap(m_pPage, m_pHidden);
        m_pPage->setUpdatesEnabled(true);
        m_pPage->setVisible(true);
        m_pPage->setEnabled(true);
        m_pHidden->setDisabled(true);
        m_pHidden->setVisible(false);
    }

    void refill(const std::vector<std::string>& texts) override
    {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            m_cells[i]->m_text = QString::fromStdString(texts[i]);
            m_cells[i]->update();
        }
    }

    void showTab(int tab) override
    {
        m_tabs[m_tab].pButton->setPressed(false);
        m_tabs[m_tab].pPage->hide();
        m_tab = static_cast<std::size_t>(tab);
        m_tabs[m_tab].pButton->setPressed(true);
        m_tabs[m_tab].pPage->show();
    }

    void setPercent(int percent) override { m_pGauge->setPercent(percent); }

private:
    struct Tab
    {
        ButtonWidget* pButton;
        QWidget* pPage;
    };

    QWidget* build(const std::string& page)
    {
        pugi::xml_document document;
        if (!document.load_file(m_site.layout(page).c_str()))
            throw std::runtime_error("cannot read the layout " + page);
        auto* pPage = new QWidget(m_pWindow.get());
        pPage->setGeometry(0, 0, 800, 480);
        m_cells.clear();
        m_tabs.clear();
        m_tab = 0;
        buildGroups(pPage, document.document_element().child("Components"));
        return pPage;
    }

    void buildGroups(QWidget* pParent, const pugi::xml_node& groups)
    {
        for (const pugi::xml_node& group : groups) {
            for (const pugi::xml_node& node : group)
                buildWidget(pParent, group.name(), node);
        }
    }

    void buildWidget(QWidget* pPage, const char* kind, const pugi::xml_node& node)
    {
        if (std::strcmp(kind, "imagebox") == 0) {
            auto* pPicture = new PictureWidget(pPage);
            pPicture->m_pUp = picture(node.attribute("file"));
            pPicture->setGeometry(placeOf(node));
        } else if (std::strcmp(kind, "label") == 0) {
            auto* pLabel = new TextWidget(pPage);
            pLabel->m_text = QString::fromUtf8(node.attribute("title").value());
            pLabel->setGeometry(placeOf(node.child("position")));
        } else if (std::strcmp(kind, "button") == 0) {
            buildButton(pPage, node);
        } else {
            buildPart(pPage, kind, node);
        }
    }

    void buildPart(QWidget* pParent, const char* kind, const pugi::xml_node& node)
    {
        if (std::strcmp(kind, "listscroll") == 0)
            buildScroll(pParent, node);
        else if (std::strcmp(kind, "tabbutton") == 0)
            buildTabButton(pParent, node);
        else if (std::strcmp(kind, "roundprogress") == 0)
            m_pGauge = buildGauge(new RoundWidget(pParent), node, "image", "file", "round", "file");
        else if (std::strcmp(kind, "imageprogress") == 0)
            m_pGauge = buildGauge(new BarWidget(pParent), node, "image", "bg", "image", "mid");
        else
            buildContainer(pParent, kind, node);
    }

    // a list, a row of it, a tab, or a page of it
    void buildContainer(QWidget* pParent, const char* kind, const pugi::xml_node& node)
    {
        auto* pContainer = new QWidget(pParent);
        pContainer->setGeometry(placeOf(node.child("position")));
        buildGroups(pContainer, node);
        if (std::strcmp(kind, "listitem") == 0) {
            for (QObject* pCell : pContainer->children())
                m_cells.push_back(static_cast<TextWidget*>(pCell));
        } else if (std::strcmp(kind, "tabpage") == 0) {
            pContainer->setVisible(m_tabs.size() == 1);
            m_tabs.back().pPage = pContainer;
        }
    }

    void buildScroll(QWidget* pParent, const pugi::xml_node& node)
    {
        for (const char* name : {"upbtn", "downbtn"}) {
            auto* pButton = new ButtonWidget(pParent);
            pButton->m_pUp = picture(node.child(name).attribute("up"));
            pButton->m_pDown = picture(node.child(name).attribute("down"));
            pButton->setGeometry(placeOf(node.child(name)));
        }
        auto* pLabel = new TextWidget(pParent);
        pLabel->m_text = QStringLiteral("1/1");
        pLabel->setGeometry(placeOf(node.child("page")));
    }

    void buildTabButton(QWidget* pParent, const pugi::xml_node& node)
    {
        auto* pButton = new ButtonWidget(pParent);
        fillButton(*pButton, node);
        pButton->setPressed(m_tabs.empty());
        m_tabs.push_back({pButton, nullptr});
    }

    GaugeWidget* buildGauge(GaugeWidget* pGauge, const pugi::xml_node& node, const char* back,
                            const char* backFile, const char* fill, const char* fillFile)
    {
        pGauge->m_pBack = picture(node.child(back).attribute(backFile));
        pGauge->m_pFill = picture(node.child(fill).attribute(fillFile));
        pGauge->setGeometry(placeOf(node.child("position")));
        return pGauge;
    }

    template <typename Button>
    void fillButton(Button& button, const pugi::xml_node& node)
    {
        button.m_pUp = picture(node.child("image").attribute("up"));
        button.m_pDown = picture(node.child("image").attribute("down"));
        button.m_title = QString::fromUtf8(node.attribute("title").value());
        button.setGeometry(placeOf(node.child("position")));
    }

    void buildButton(QWidget* pPage, const pugi::xml_node& node)
    {
        if (!m_bQtButtons) {
            fillButton(*new ButtonWidget(pPage), node);
            return;
        }
        auto* pButton = new QtButtonWidget(pPage);
        fillButton(*pButton, node);
        QObject::connect(pButton, &QAbstractButton::clicked, pPage, [this] { onClick(); });
    }

    const QPixmap* picture(const pugi::xml_attribute& file)
    {
        return m_pictures.get(m_site.picture(file.value()));
    }

    const Site& m_site;
    bool m_bQtButtons;
    PictureCache m_pictures;
    std::unique_ptr<QWidget> m_pWindow = makeWindow();
    QWidget* m_pPage = nullptr;
    QWidget* m_pHidden = nullptr;
    std::vector<TextWidget*> m_cells;
    std::vector<Tab> m_tabs;
    std::size_t m_tab = 0;
    GaugeWidget* m_pGauge = nullptr;
};

} // namespace

std::unique_ptr<Candidate> makeCode(const Site& site)
{
    return std::make_unique<Code>(site, false);
}

std::unique_ptr<Candidate> makeCodeWithQtButtons(const Site& site)
{
    return std::make_unique<Code>(site, true);
}

} // namespace bench
