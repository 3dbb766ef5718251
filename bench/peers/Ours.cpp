#include "Candidate.h"
#include "peers/PanelFrame.h"

#include "components/containers/ZELTab.h"
#include "components/gauges/ZELProgressBar.h"
#include "components/lists/ZELList.h"
#include "components/text/ZELLabel.h"

#include <QWidget>

namespace bench {

namespace {

using PANFx::Components::ZELLabel;
using PANFx::Components::ZELList;
using PANFx::Components::ZELProgressBar;
using PANFx::Components::ZELTab;

/** The library as an application uses it: a frame, ids, moveTo, everything switched on. */
class Ours : public WidgetCandidate
{
public:
    explicit Ours(const Site&) {}

    void open() override
    {
        m_frame.moveTo(homePage().name, true, true);
        openWindow(&m_frame);
    }

    void start(const std::string& page) override
    {
        m_frame.moveTo(page, true, true);
        openWindow(&m_frame);
    }

    void load(const std::string& page) override { m_frame.moveTo(page, true, true); }
    void unload() override { m_frame.leaveCurrentPage(); }

    void keep(const std::string& first, const std::string& second) override
    {
        m_hidden = first;
        m_shown = second;
        m_frame.moveTo(first, true, true);
        m_frame.moveTo(second, true, true);
    }

    void switchPage() override
    {
        std::swap(m_hidden, m_shown);
        m_frame.moveTo(m_shown, true, true);
    }

    void refill(const std::vector<std::string>& texts) override
    {
        auto& list = m_frame.component<ZELList>(Site::listId);
        std::size_t i = 0;
        for (int row = 0; row < Site::listRows; ++row) {
            for (int column = 0; column < Site::listColumns; ++column) {
                auto* cell = static_cast<ZELLabel*>(list.getItemComponent(row, column));
                cell->setTitle(texts[i++]);
                cell->update();
            }
        }
    }

    void showTab(int tab) override { m_frame.component<ZELTab>(Site::tabId).setPage(tab); }

    void setPercent(int percent) override
    {
        m_frame.component<ZELProgressBar>(Site::gaugeId).SetPercent(percent);
    }

private:
    PanelFrame m_frame{this};
    std::string m_shown;
    std::string m_hidden;
};

} // namespace

std::unique_ptr<Candidate> makeOurs(const Site& site)
{
    return std::make_unique<Ours>(site);
}

} // namespace bench
