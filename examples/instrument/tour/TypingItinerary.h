#pragma once

#include "tour/StepList.h"
#include "tour/TourReader.h"

class InstrumentFrame;
class TourDatabase;

/// The part of the tour on which values and texts are typed, with a touch for every key. It
/// begins on any page but one and ends on the readings.
class TypingItinerary : private StepList
{
public:
    /// The tour holds the database that is given.
    TypingItinerary(InstrumentFrame& frame, Screen& screen, TourDatabase& database);

    /// They refer to the itinerary and must not outlive it.
    std::vector<TourStep> steps();

private:
    void held();
    void dates();
    void times();
    void address();
    void numbers();
    void operatorCode();
    void limits();
    void english();
    void erased();
    void korean();
    void scanned();
    void refused(const std::string& strName);
    void labels();

    /// Adds a step that empties a field and types into it on the pad; then it must hold the text.
    void addEntry(const std::string& strPage, const std::string& strName,
                  const std::string& strField, const std::string& strKeys,
                  const std::string& strText);

    /// Adds a step on the keyboard, after which the name must be that text.
    void addName(const std::string& strName, Actions actions, const std::string& strText);

    /// Holds a backspace key until all is gone: four ticks take a character each, the fifth all.
    Actions holdUntilEmpty(const std::string& strKey);

    /// Touches keys of the pad: digits, "." and what else stands in the table.
    Actions onPad(const std::string& strKeys);

    /// Touches the zero key of the present set of keys.
    Action tapZero();

    InstrumentFrame& m_frame;
    TourDatabase& m_database;
    TourReader m_reader;
};
