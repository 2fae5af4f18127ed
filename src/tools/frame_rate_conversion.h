#pragma once

#include "controls/control.h"

namespace kavro {

class EditHistory;
class LanguageTable;
class Messages;
class SubtitleDocument;
struct ActionTrace;
struct FrameRatePage;

/// Holds the frame rate in force, and rescales all times from one rate to another. The buttons and
/// lists of the rates stand on the frame rate page.
///
/// Times are multiplied by the rate to over the rate from, for a movie that runs at the first and a
/// subtitle that was made for the second: from 25 to 23.97 all comes earlier. Hours that come to
/// 100 or more widen their time. A document with a time below zero is refused with a message and
/// left as it is; the history has a line of the attempt.
class FrameRateConversion
{
public:
    FrameRateConversion(Form &frmMain, FrameRatePage &rates, SubtitleDocument &document,
                        EditHistory &history, Messages &messages, const LanguageTable &language,
                        ActionTrace &trace);

    Label Label32;    ///< names the two rates
    Button Command52; ///< "Go converting frame rate"

private:
    void connectRates();
    void useRate(int index);
    void convert();
    bool checkTimes();
    void scaleTimes(double ratio);

    FrameRatePage &m_rates;
    SubtitleDocument &m_document;
    EditHistory &m_history;
    Messages &m_messages;
    const LanguageTable &m_language;
    ActionTrace &m_trace;
};

} // namespace kavro
