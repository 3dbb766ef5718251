#pragma once

#include "pages/InstrumentPage.h"

#include <map>

namespace PANFx::Components {
class ZELImageEdit;
class ZELNumPad;
} // namespace PANFx::Components

/// A page with fields for values and one numeric pad, a popup called "pad". A touch on a field
/// brings the pad up with the keys that fit; what was typed counts once the field is left.
class PadPage : public InstrumentPage
{
public:
    PadPage(const std::string& strID, InstrumentFrame* pFrame);

    /// Comes up with present values in the fields and without the pad.
    void activating() override;

protected:
    /// The sets of keys of the pad that are used here.
    enum Keys { digits = 0, withPoint = 1, timeOfDay = 3, withWord = 4 };

    bool event(QEvent* pEvent) override;
    void showValues() override;

    /// Makes a field typed on the pad. The pad shows the name of the field, "@FIELD", and a text
    /// about its range. Done again, it changes these.
    void addField(const std::string& strField, Keys keys, const std::string& strRange);

    /// The same for a field that lies in a list, which reports by its row: `event` of the page
    /// calls openPad and leaveField. Anything but a field is left out.
    void addField(const std::string& strField, PANFx::Components::ZELComponent* pField, Keys keys,
                  const std::string& strRange);

    /// Brings the pad up for a field.
    void openPad(const std::string& strField);

    /// Takes what a field holds, and shows what has become of it.
    void leaveField(const std::string& strField);

    /// A field that has been added, or null.
    PANFx::Components::ZELImageEdit* field(const std::string& strField);

    /// Writes the present value into a field.
    virtual void fillField(const std::string& strField) = 0;

    /// The user has left the field: takes what it holds, unless that is no whole value.
    virtual void takeField(const std::string& strField) = 0;

private:
    struct Field
    {
        PANFx::Components::ZELImageEdit* pEdit;
        Keys keys;
        std::string strRange;
    };

    PANFx::Components::ZELNumPad* m_pPad;
    std::map<std::string, Field> m_fields; ///< by id
};
