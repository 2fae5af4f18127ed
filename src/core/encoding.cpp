#include "core/encoding.h"

#include <uchardet/uchardet.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kavro {

namespace {

constexpr std::array encodings = {
    EncodingEntry{"UTF-8", "Unicode (UTF-8)"},
    EncodingEntry{"UTF-16LE", "Unicode (UTF-16 little endian)"},
    EncodingEntry{"UTF-16BE", "Unicode (UTF-16 big endian)"},
    EncodingEntry{"UTF-32LE", "Unicode (UTF-32 little endian)"},
    EncodingEntry{"UTF-32BE", "Unicode (UTF-32 big endian)"},
    EncodingEntry{"Windows-1252", "Western (Windows-1252)"},
    EncodingEntry{"ISO-8859-15", "Western (ISO-8859-15)"},
    EncodingEntry{"IBM850", "Western (DOS 850)"},
    EncodingEntry{"macintosh", "Western (Mac)"},
    EncodingEntry{"Windows-1250", "Central European (Windows-1250)"},
    EncodingEntry{"ISO-8859-2", "Central European (ISO-8859-2)"},
    EncodingEntry{"IBM852", "Central European (DOS 852)"},
    EncodingEntry{"ISO-8859-3", "South European (ISO-8859-3)"},
    EncodingEntry{"Windows-1251", "Cyrillic (Windows-1251)"},
    EncodingEntry{"KOI8-R", "Cyrillic (KOI8-R)"},
    EncodingEntry{"KOI8-U", "Cyrillic (KOI8-U)"},
    EncodingEntry{"ISO-8859-5", "Cyrillic (ISO-8859-5)"},
    EncodingEntry{"IBM855", "Cyrillic (DOS 855)"},
    EncodingEntry{"IBM866", "Cyrillic (DOS 866)"},
    EncodingEntry{"x-mac-cyrillic", "Cyrillic (Mac)"},
    EncodingEntry{"Windows-1253", "Greek (Windows-1253)"},
    EncodingEntry{"Windows-1254", "Turkish (Windows-1254)"},
    EncodingEntry{"Windows-1255", "Hebrew (Windows-1255)"},
    EncodingEntry{"Windows-1256", "Arabic (Windows-1256)"},
    EncodingEntry{"ISO-8859-6", "Arabic (ISO-8859-6)"},
    EncodingEntry{"Windows-1257", "Baltic (Windows-1257)"},
    EncodingEntry{"ISO-8859-4", "Baltic (ISO-8859-4)"},
    EncodingEntry{"ISO-8859-13", "Baltic (ISO-8859-13)"},
    EncodingEntry{"ISO-8859-10", "Nordic (ISO-8859-10)"},
    EncodingEntry{"Windows-1258", "Vietnamese (Windows-1258)"},
    EncodingEntry{"Windows-874", "Thai (Windows-874)"},
    EncodingEntry{"Shift_JIS", "Japanese (Shift_JIS)"},
    EncodingEntry{"EUC-JP", "Japanese (EUC-JP)"},
    EncodingEntry{"ISO-2022-JP", "Japanese (ISO-2022-JP)"},
    EncodingEntry{"GB18030", "Chinese, simplified (GB18030)"},
    EncodingEntry{"Big5", "Chinese, traditional (Big5)"},
    EncodingEntry{"Big5-HKSCS", "Chinese, Hong Kong (Big5-HKSCS)"},
    EncodingEntry{"EUC-TW", "Chinese, traditional (EUC-TW)"},
    EncodingEntry{"Windows-949", "Korean (Windows-949)"},
};

struct Alias
{
    const char *plain; ///< letters in lower case and digits alone
    const char *name;
};

/// Other names, and encodings that are read as the one that holds them.
constexpr std::array aliases = {
    Alias{"utf16", "UTF-16LE"},
    Alias{"utf32", "UTF-32LE"},
    Alias{"ascii", "UTF-8"},
    Alias{"usascii", "UTF-8"},
    Alias{"iso88591", "Windows-1252"},
    Alias{"latin1", "Windows-1252"},
    Alias{"cp850", "IBM850"},
    Alias{"cp852", "IBM852"},
    Alias{"cp855", "IBM855"},
    Alias{"cp866", "IBM866"},
    Alias{"latin2", "ISO-8859-2"},
    Alias{"latin9", "ISO-8859-15"},
    Alias{"maccyrillic", "x-mac-cyrillic"},
    Alias{"iso88597", "Windows-1253"},
    Alias{"iso88598", "Windows-1255"},
    Alias{"iso88599", "Windows-1254"},
    Alias{"iso885911", "Windows-874"},
    Alias{"tis620", "Windows-874"},
    Alias{"sjis", "Shift_JIS"},
    Alias{"cp932", "Shift_JIS"},
    Alias{"windows932", "Shift_JIS"},
    Alias{"gb2312", "GB18030"},
    Alias{"gbk", "GB18030"},
    Alias{"cp936", "GB18030"},
    Alias{"windows936", "GB18030"},
    Alias{"cp950", "Big5"},
    Alias{"windows950", "Big5"},
    Alias{"euckr", "Windows-949"},
    Alias{"uhc", "Windows-949"},
};

struct CharacterSet
{
    int number;
    const char *codePage;
};

constexpr std::array characterSets = {
    CharacterSet{0, "Windows-1252"},   // Western
    CharacterSet{77, "macintosh"},     // Mac
    CharacterSet{128, "Shift_JIS"},    // Japanese
    CharacterSet{129, "Windows-949"},  // Korean
    CharacterSet{134, "GB18030"},      // Chinese, simplified
    CharacterSet{136, "Big5"},         // Chinese, traditional
    CharacterSet{161, "Windows-1253"}, // Greek
    CharacterSet{162, "Windows-1254"}, // Turkish
    CharacterSet{163, "Windows-1258"}, // Vietnamese
    CharacterSet{177, "Windows-1255"}, // Hebrew
    CharacterSet{178, "Windows-1256"}, // Arabic
    CharacterSet{186, "Windows-1257"}, // Baltic
    CharacterSet{204, "Windows-1251"}, // Cyrillic
    CharacterSet{222, "Windows-874"},  // Thai
    CharacterSet{238, "Windows-1250"}, // Central European
    CharacterSet{255, "IBM850"},       // DOS/OEM
};

struct Mark
{
    QByteArrayView bytes;
    const char *name;
};

/// UTF-32 ahead of UTF-16, whose mark its own begins with.
constexpr std::array marks = {
    Mark{QByteArrayView("\xFF\xFE\0\0", 4), "UTF-32LE"},
    Mark{QByteArrayView("\0\0\xFE\xFF", 4), "UTF-32BE"},
    Mark{QByteArrayView("\xFF\xFE", 2), "UTF-16LE"},
    Mark{QByteArrayView("\xFE\xFF", 2), "UTF-16BE"},
    Mark{QByteArrayView("\xEF\xBB\xBF", 3), "UTF-8"},
};

/// A name by which "windows-1251", "CP1251" and "Windows 1251" are one.
QByteArray plainName(QByteArrayView name)
{
    QByteArray plain;
    for (const char c : name.toByteArray().toLower()) {
        if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'))
            plain += c;
    }
    for (const QByteArrayView prefix :
         {QByteArrayView("cp125"), QByteArrayView("cp874"), QByteArrayView("cp949")})
    {
        if (plain.startsWith(prefix))
            return "windows" + plain.sliced(2);
    }
    return plain;
}

/// How many bytes at the end of `bytes` begin a UTF-8 sequence without ending it.
qsizetype cutSequence(QByteArrayView bytes)
{
    const qsizetype most = std::min<qsizetype>(3, bytes.size());
    for (qsizetype back = 1; back <= most; ++back) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - back]);
        if ((byte & 0xC0) == 0x80)
            continue;
        const qsizetype length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
        return length > back ? back : 0;
    }
    return 0;
}

bool isAscii(QStringView text)
{
    unsigned all = 0;
    for (const QChar c : text)
        all |= c.unicode();
    return all < 0x80;
}

bool isUnicode(const QByteArray &name)
{
    return name.startsWith("UTF-");
}

} // namespace

std::span<const EncodingEntry> textEncodings()
{
    return encodings;
}

std::optional<TextEncoding> encodingByName(QStringView name)
{
    const QByteArray plain = plainName(name.toUtf8());
    if (plain == "utf8bom" || plain == "utf8sig")
        return TextEncoding{.name = "UTF-8", .bom = true};
    const auto alias = std::ranges::find(aliases, plain, &Alias::plain);
    const QByteArray wanted = alias == aliases.end() ? plain : plainName(alias->name);
    for (const EncodingEntry &entry : encodings) {
        if (plainName(entry.name) == wanted) {
            const QByteArray found = entry.name;
            return TextEncoding{.name = found, .bom = isUnicode(found) && found != "UTF-8"};
        }
    }
    return {};
}

QByteArray codePageOfCharacterSet(int characterSet)
{
    const auto found = std::ranges::find(characterSets, characterSet, &CharacterSet::number);
    return found == characterSets.end() ? QByteArray() : QByteArray(found->codePage);
}

QString encodingText(const TextEncoding &encoding)
{
    const QString name = QString::fromLatin1(encoding.name);
    return encoding.bom && encoding.name == "UTF-8" ? name + " BOM"_L1 : name;
}

std::optional<TextEncoding> encodingByMark(QByteArrayView bytes)
{
    for (const Mark &mark : marks) {
        if (bytes.startsWith(mark.bytes))
            return TextEncoding{.name = mark.name, .bom = true};
    }
    return {};
}

QByteArrayView markOf(const QByteArray &name)
{
    const auto found = std::ranges::find(marks, name, &Mark::name);
    return found == marks.end() ? QByteArrayView() : found->bytes;
}

struct EncodingDetector::Guess
{
    uchardet_t handle = uchardet_new();

    Guess() = default;
    ~Guess() { uchardet_delete(handle); }
    Guess(const Guess &) = delete;
    Guess &operator=(const Guess &) = delete;
};

EncodingDetector::EncodingDetector(const QByteArray &codePage) : m_codePage(codePage) {}

EncodingDetector::~EncodingDetector() = default;

void EncodingDetector::feed(QByteArrayView bytes)
{
    if (m_first)
        m_found = encodingByMark(bytes);
    m_first = false;
    if (m_found || (!m_guess && fitsUtf8(bytes)))
        return;
    if (!m_codePage.isEmpty())
        m_found = TextEncoding{.name = m_codePage};
    else
        feedGuess(bytes);
}

bool EncodingDetector::fitsUtf8(QByteArrayView bytes)
{
    QByteArray joint;
    if (!m_sequence.isEmpty()) {
        joint = m_sequence;
        joint += bytes;
        bytes = joint;
    }
    const qsizetype cut = cutSequence(bytes);
    m_sequence = bytes.last(cut).toByteArray();
    return bytes.chopped(cut).isValidUtf8();
}

void EncodingDetector::feedGuess(QByteArrayView bytes)
{
    // More never changes the guess, and costs more than all the rest of a load.
    constexpr qsizetype enough = 1 << 16;
    if (!m_guess)
        m_guess = std::make_unique<Guess>();
    const QByteArrayView part = bytes.first(std::min(bytes.size(), enough - m_guessed));
    m_guessed += part.size();
    if (!part.isEmpty())
        uchardet_handle_data(m_guess->handle, part.data(), static_cast<std::size_t>(part.size()));
}

TextEncoding EncodingDetector::finish()
{
    if (m_found)
        return *m_found;
    if (!m_guess && m_sequence.isEmpty())
        return {};
    if (!m_guess && !m_codePage.isEmpty())
        return {.name = m_codePage};

    // The guesser tells the smaller sets apart; the bytes that they lack are their larger sisters'.
    constexpr std::array widened = {
        Alias{"ISO-8859-1", "Windows-1252"}, Alias{"ISO-8859-15", "Windows-1252"},
        Alias{"ISO-8859-9", "Windows-1254"}, Alias{"ISO-8859-7", "Windows-1253"},
        Alias{"UHC", "Windows-949"},         Alias{"EUC-KR", "Windows-949"},
    };
    QByteArray name;
    if (m_guess) {
        uchardet_data_end(m_guess->handle);
        name = uchardet_get_charset(m_guess->handle);
    }
    const auto wider = std::ranges::find(widened, name, &Alias::plain);
    if (wider != widened.end())
        name = wider->name;
    const std::optional<TextEncoding> known = encodingByName(QString::fromLatin1(name));
    return known && !isUnicode(known->name) ? *known : TextEncoding{.name = "Windows-1252"};
}

TextEncoder::TextEncoder(const TextEncoding &encoding) : m_encoder(encoding.name.constData())
{
    if (encoding.bom)
        m_mark = markOf(encoding.name).toByteArray();
}

bool TextEncoder::append(QStringView text, QByteArray &bytes)
{
    bytes += m_mark;
    m_mark.clear();
    const qsizetype before = bytes.size();
    bytes.resize(before + m_encoder.requiredSpace(text.size()));
    char *const end = m_encoder.appendToBuffer(bytes.data() + before, text);
    bytes.truncate(end - bytes.constData());
    return !m_encoder.hasError();
}

EncodingCheck::EncodingCheck(const TextEncoding &encoding)
    : m_name(encoding.name), m_unicode(isUnicode(encoding.name))
{}

bool EncodingCheck::holds(QStringView text)
{
    if (isAscii(text))
        return true;
    if (!text.isValidUtf16())
        return false;
    if (m_unicode)
        return true;
    if (!m_encoder)
        m_encoder.emplace(m_name.constData());
    m_bytes.resize(m_encoder->requiredSpace(text.size()));
    m_encoder->appendToBuffer(m_bytes.data(), text);
    const bool held = !m_encoder->hasError();
    // The fault would stay, and an encoder that is moved into place would never find another.
    if (!held)
        m_encoder.reset();
    return held;
}

} // namespace kavro
