#pragma once

#include "ui/tool_page.h"

namespace kavro {

class SearchReplace;

/// The page of the Search/Replace tool.
class SearchView : public ToolPage
{
    Q_OBJECT

public:
    SearchView(SearchReplace &search, QWidget *parent);

private:
    QWidget *makeModes(SearchReplace &search);
    void showMatches(QLineEdit &what, Label &matches);
};

} // namespace kavro
