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

private:
    QWidget* build(const std::string& page)
    {
        pugi::xml_document document;
        if (!document.load_file(m_site.layout(page).c_str()))
            throw std::runtime_error("cannot read the layout " + page);
        auto* pPage = new QWidget(m_pWindow.get());
        pPage->setGeometry(0, 0, 800, 480);
        for (const pugi::xml_node& group : document.document_element().child("Components")) {
            for (const pugi::xml_node& node : group)
                buildWidget(pPage, group.name(), node);
        }
        return pPage;
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
        } else {
            buildButton(pPage, node);
        }
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
