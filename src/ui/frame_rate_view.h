#pragma once

#include "ui/tool_page.h"

namespace kavro {

class FrameRateConversion;
struct FrameRatePage;

/// The page of the frame rates: the rate in force, and the conversion from one to another.
class FrameRateView : public ToolPage
{
    Q_OBJECT

public:
    FrameRateView(FrameRateConversion &conversion, FrameRatePage &rates, QWidget *parent);

private:
    QWidget *makeRates(FrameRatePage &rates);
};

} // namespace kavro
