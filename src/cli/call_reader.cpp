#include "cli/call_reader.h"

#include "core/frame_rate_page.h"
#include "core/text.h"

#include <QCommandLineParser>
#include <QDir>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavro {

using namespace Qt::StringLiterals;

namespace {

/// By the number of the answer.
constexpr std::array<QStringView, 4> answerNames = {u"cancel", u"ok", u"no", u"yes"};

} // namespace

std::optional<int> frameRateEntry(QStringView rate)
{
    bool isNumber = false;
    const double wanted = rate.toDouble(&isNumber);
    const QStringList &rates = FrameRatePage::rates();
    for (int entry = 0; isNumber && entry < rates.size(); ++entry) {
        if (std::abs(Val(rates[entry]) - wanted) < 1e-9)
            return entry;
    }
    return std::nullopt;
}

std::optional<Answer> answerByName(QStringView name)
{
    const auto *found = std::ranges::find(answerNames, name);
    if (found == answerNames.end())
        return std::nullopt;
    return static_cast<Answer>(found - answerNames.begin());
}

QStringView answerName(Answer answer)
{
    return answerNames[static_cast<std::size_t>(answer)];
}

QString absolutePath(const QString &path)
{
    if (path.isEmpty() || path.startsWith(u'/'))
        return path;
    QStringView name = path;
    while (name.startsWith(u"./"))
        name = name.sliced(2);
    QString folder = QDir::currentPath();
    if (!folder.endsWith(u'/'))
        folder += u'/';
    return folder.append(name);
}

LoadOptions CallReader::loadOptions()
{
    LoadOptions options;
    if (m_call.value(u"from"_s).compare("detect"_L1, Qt::CaseInsensitive) == 0)
        options.linesDecide = true;
    else
        options.format = format(u"from"_s);
    if (m_call.isSet(u"fps"_s)) {
        const QString rate = m_call.value(u"fps"_s);
        options.frameRate = frameRateEntry(rate);
        if (!options.frameRate)
            fail(u"\"%1\" is no frame rate, those are %2"_s.arg(
                rate, FrameRatePage::rates().join(u", "_s)));
    }
    options.encoding.encoding = encoding(u"encoding"_s);
    return options;
}

int CallReader::format(const QString &option)
{
    if (!m_call.isSet(option))
        return UnknownFormat;
    const QString name = m_call.value(option);
    const std::optional<FormatId> format = formatByName(name);
    if (!format)
        fail(u"\"%1\" is no format or more than one, see kavro-cli formats"_s.arg(name));
    return format.value_or(UnknownFormat);
}

std::optional<TextEncoding> CallReader::encoding(const QString &option)
{
    if (!m_call.isSet(option))
        return std::nullopt;
    const QString name = m_call.value(option);
    std::optional<TextEncoding> encoding = encodingByName(name);
    if (!encoding)
        fail(u"\"%1\" is no known encoding"_s.arg(name));
    return encoding;
}

std::optional<Answer> CallReader::answer()
{
    if (!m_call.isSet(u"answer"_s))
        return std::nullopt;
    const QString name = m_call.value(u"answer"_s);
    const std::optional<Answer> answer = answerByName(name);
    if (!answer)
        fail(u"\"%1\" is no answer, those are yes, no, ok, cancel"_s.arg(name));
    return answer;
}

void CallReader::fail(const QString &fault)
{
    if (m_fault.isEmpty())
        m_fault = fault;
}

} // namespace kavro
