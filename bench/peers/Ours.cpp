#include "Candidate.h"
#include "peers/PanelFrame.h"

#include <QWidget>

namespace bench {

namespace {

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

private:
    PanelFrame m_frame{onClick};
    std::string m_shown;
    std::string m_hidden;
};

} // namespace

std::unique_ptr<Candidate> makeOurs(const Site& site)
{
    return std::make_unique<Ours>(site);
}

} // namespace bench
