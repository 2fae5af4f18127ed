// bare_convert INPUT OUTPUT: SubRip to SubViewer 2.0 and nothing else, the yardstick that
// scripts/bench holds `kavro-cli convert` against. It reads line by line and keeps one subtitle.

#include <fstream>
#include <iostream>
#include <string>

namespace {

/// "00:00:01,500 --> 00:00:02,250" as "00:00:01.50,00:00:02.25", false for a line of another form.
bool timeLine(const std::string &line, std::string &out)
{
    const auto arrow = line.find(" --> ");
    if (arrow != 12 || line.size() < 29)
        return false;
    out.assign(line, 0, 8).append(".").append(line, 9, 2).append(",");
    out.append(line, 17, 8).append(".").append(line, 26, 2);
    return true;
}

constexpr const char *header = "[INFORMATION]\r\n[AUTHOR]\r\n[SOURCE]\r\n[PRG]\r\n[FILEPATH]\r\n"
                               "[DELAY]0\r\n[CD TRACK]0\r\n[COMMENT]\r\n[END INFORMATION]\r\n"
                               "[SUBTITLE]\r\n"
                               "[COLF]&HFFFFFF,[STYLE]no,[SIZE]29, [Font]Arial\r\n\r\n";

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "usage: bare_convert INPUT OUTPUT\n";
        return 2;
    }
    std::ifstream in(argv[1], std::ios::binary);
    std::ofstream out(argv[2], std::ios::binary);
    if (!in || !out)
        return 1;
    out << header;
    std::string line;
    std::string times;
    std::string text;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty()) {
            if (!times.empty())
                out << times << "\r\n" << text << "\r\n\r\n";
            times.clear();
            text.clear();
        } else if (times.empty()) {
            timeLine(line, times); // a number line is passed over
        } else {
            if (!text.empty())
                text += "[br]";
            text += line;
        }
    }
    if (!times.empty())
        out << times << "\r\n" << text << "\r\n\r\n";
    out.close();
    return out ? 0 : 1;
}
