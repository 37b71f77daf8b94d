// The states and their telephone area codes. The order of the rows is the order of what is found. Knows nobody.
#pragma once

#include <QStringView>
#include <array>

struct AreaCodeRow
{
    QStringView state;
    QStringView codes; // of three digits, divided by ","
};

inline constexpr std::array<AreaCodeRow, 52> areaCodeRows{{
    {u"Alabama", u"205,251,256,334"},
    {u"Alaska", u"907"},
    {u"Arizona", u"480,520,602,623,928"},
    {u"Arkansas", u"479,501,870"},
    {u"California",
     u"209,213,310,323,341,369,408,415,424,442,510,530,559,562,619,626,627,628,650,657,661,669,707,714,747,"
     u"752,760,764,805,818,831,858,909,916,925,935,949,951"},
    {u"Colorado", u"303,719,720,970"},
    {u"Connecticut", u"203,475,860,959"},
    {u"Delaware", u"302"},
    {u"Florida", u"239,305,321,352,354,386,407,561,689,727,754,772,786,813,836,850,861,863,904,941,954"},
    {u"Georgia", u"229,404,470,478,678,706,770,912"},
    {u"Guam", u"671"},
    {u"Hawaii", u"808"},
    {u"Idaho", u"208"},
    {u"Illinois", u"217,224,282,309,312,331,464,618,630,708,773,815,847,872"},
    {u"Indiana", u"219,260,317,574,765,812"},
    {u"Iowa", u"319,515,563,641,712"},
    {u"Kansas", u"316,620,785,913"},
    {u"Kentucky", u"270,327,502,606,859"},
    {u"Louisiana", u"225,318,337,504,985"},
    {u"Maine", u"207,383"},
    {u"Maryland", u"240,280,301,410,443,969"},
    {u"Massachusetts", u"339,351,413,508,617,774,781,857,978"},
    {u"Michigan", u"231,248,269,278,313,517,546,586,616,679,734,810,906,947,989"},
    {u"Minnesota", u"218,320,507,612,651,763,952"},
    {u"Mississippi", u"228,601,662"},
    {u"Missouri", u"314,417,557,573,636,660,816,975"},
    {u"Montana", u"406"},
    {u"Nebraska", u"308,402"},
    {u"Nevada", u"702,775"},
    {u"New Hampshire", u"603"},
    {u"New Jersey", u"201,356,551,609,732,848,856,862,908,973"},
    {u"New Mexico", u"505,957"},
    {u"New York", u"212,315,347,516,518,585,607,631,646,716,718,845,914,917"},
    {u"North Carolina", u"252,336,704,828,910,919,980,984"},
    {u"North Dakota", u"701"},
    {u"Ohio", u"216,234,283,330,380,419,440,513,567,614,740,937"},
    {u"Oklahoma", u"405,580,918"},
    {u"Oregon", u"503,541,971"},
    {u"Pennsylvania", u"215,267,358,412,445,484,570,610,717,724,814,835,878"},
    {u"Puerto Rico", u"787,939"},
    {u"Rhode Island", u"401"},
    {u"South Carolina", u"803,843,864"},
    {u"South Dakota", u"605"},
    {u"Texas", u"210,214,254,281,361,409,430,432,469,512,682,713,737,806,817,830,832,903,915,936,940,956,972,979"},
    {u"Utah", u"385,435,801"},
    {u"Vermont", u"802"},
    {u"Virginia", u"236,276,381,434,540,571,703,757,804"},
    {u"Washington", u"206,253,360,425,509,564"},
    {u"Washington Dc", u"202"},
    {u"West Virgina", u"304"},
    {u"Wisconsin", u"262,353,414,420,608,715,920"},
    {u"Wyoming", u"307"},
}};
