#include "ui/file_dialog.h"

#include "ui/window_parent.h"

#include <QCheckBox>
#include <QDir>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// The folders that stand at the side: the person's own, and the one the window begins in.
QList<QUrl> usualPlaces(const QString &folder)
{
    QList<QUrl> places;
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DocumentsLocation,
                             QStandardPaths::MoviesLocation, QStandardPaths::DownloadLocation})
    {
        const QString path = QStandardPaths::writableLocation(place);
        if (QDir(path).exists() && !places.contains(QUrl::fromLocalFile(path))) {
            places.append(QUrl::fromLocalFile(path));
        }
    }
    if (!places.contains(QUrl::fromLocalFile(folder))) {
        places.append(QUrl::fromLocalFile(folder));
    }
    return places;
}

} // namespace

QString nameFilter(const QString &filter)
{
    const QString label = filter.section(u'|', 0, 0).section(u'(', 0, 0).trimmed();
    return label + u" ("_s + filter.section(u'|', 1).replace(u';', u' ') + u')';
}

FileDialog::FileDialog(const FileRequest &request, QWidget *parent)
    : QFileDialog(parent, request.info, request.folder), m_request(request)
{
    setObjectName(u"frmFile"_s);
    setAcceptMode(request.nameEnabled ? AcceptSave : AcceptOpen);
    setFileMode(request.nameEnabled ? AnyFile : ExistingFile);
    setOption(DontConfirmOverwrite);
    QStringList filters;
    for (const QString &filter : request.filters) {
        filters.append(nameFilter(filter));
    }
    setNameFilters(filters);
    selectNameFilter(filters.value(request.filterIndex));
    if (!request.name.isEmpty()) {
        selectFile(request.name);
    }
    setSidebarUrls(usualPlaces(request.folder));
    resize(820, 520);
    if (request.offersMediaName || request.firstOtherFilter > 0) {
        // What stands in the window beyond a name needs a window of Qt's own.
        setOption(DontUseNativeDialog);
        addOwnRow();
    }
    // Sizes and dates are read whole, the names get the rest.
    if (const auto *list = findChild<QTreeView *>(u"treeView"_s)) {
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

void FileDialog::addOwnRow()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    if (grid == nullptr) {
        return;
    }
    m_refusal = new QLabel(tr("Choose one subtitle format in the list of file types."), this);
    m_refusal->setVisible(false);
    QFont font = m_refusal->font();
    font.setBold(true);
    m_refusal->setFont(font);
    const int row = grid->rowCount();
    if (m_request.offersMediaName) {
        m_mediaName = new QCheckBox(tr("Save as current loaded media name"), this);
        m_mediaName->setObjectName(u"Check1"_s);
        grid->addWidget(m_mediaName, row, 0, 1, -1);
    }
    grid->addWidget(m_refusal, row + 1, 0, 1, -1);
    connect(this, &QFileDialog::filterSelected, m_refusal,
            [this] { m_refusal->setVisible(m_refusal->isVisible() && !mayAccept()); });
}

int FileDialog::filterIndex() const
{
    return static_cast<int>(nameFilters().indexOf(selectedNameFilter()));
}

bool FileDialog::mayAccept() const
{
    const int filter = filterIndex();
    return m_request.firstOtherFilter == 0 || (filter >= 1 && filter < m_request.firstOtherFilter);
}

void FileDialog::accept()
{
    if (mayAccept()) {
        QFileDialog::accept();
    } else {
        m_refusal->setVisible(true);
    }
}

FileReply FileDialog::reply() const
{
    if (result() != Accepted || selectedFiles().isEmpty()) {
        return {};
    }
    return {.accepted = true,
            .path = QDir::toNativeSeparators(selectedFiles().constFirst()),
            .filterIndex = filterIndex(),
            .mediaName = m_mediaName != nullptr && m_mediaName->isChecked()};
}

FileReply FileDialogs::show(const FileRequest &request)
{
    FileRequest wanted = request;
    const bool formatNeeded = request.firstOtherFilter > 0;
    const bool isFormat =
        request.filterIndex >= 1 && request.filterIndex < request.firstOtherFilter;
    if (formatNeeded && !isFormat && documentFormat) {
        wanted.filterIndex = documentFormat();
    }
    wanted.offersMediaName = request.offersMediaName && hasMovie && hasMovie();
    FileDialog dialog(wanted, windowParent());
    dialog.exec();
    return dialog.reply();
}

} // namespace kavro
