#include "app/help_pages.h"

#include <QStringView>

#include <array>

namespace kavro {

namespace {

constexpr std::array<QStringView, helpPageCount> pages = {
    u"main_wel.htm",  // 0
    u"calc_adv.htm",  // 1
    u"calc_cla.htm",  // 2
    u"main_par.htm",  // 3
    u"edit_bas.htm",  // 4
    u"edit_sr.htm",   // 5
    u"edit_fil.htm",  // 6
    u"edit_fon.htm",  // 7
    u"edit_shi.htm",  // 8
    u"edit_str.htm",  // 9
    u"edit_tim.htm",  // 10
    u"edit_fr.htm",   // 11
    u"main_mp.htm",   // 12
    u"main_dia.htm",  // 13
    u"main_mac.htm",  // 14
    u"online_dl.htm", // 15
    u"online_ul.htm", // 16
    u"main_cli.htm",  // 17
    u"main_sp.htm",   // 18
    u"main_set.htm",  // 19
    u"main_hlp.htm",  // 20
    u"main_inf.htm",  // 21
    u"file_load.htm", // 22
    u"file_add.htm",  // 23
    u"file_save.htm", // 24
    u"main_prev.htm", // 25
    u"main_sys.htm",  // 26
    u"main_his.htm",  // 27
    u"main_wiz.htm",  // 28
    u"file_sset.htm", // 29
};

} // namespace

QString helpPage(int index)
{
    return index >= 0 && index < helpPageCount ? pages[static_cast<std::size_t>(index)].toString()
                                               : QString();
}

} // namespace kavro
