#T100

# Directive entries
#D
#1
#2
#3
#4
#5
#6
#7
#8
#9
#10
#11
#12
#13
#14
#15
#16
#17
#18
#19
#20
#21
#22
#23
#24
#25
#26
#27
#28
#29
0:00:01.99 0:00:03.45 {NTP} First line\nsecond line\nthird line
0:00:10.00 0:00:11.99 {NTP} \BBold é\b
0:59:59.96 1:00:00.04 {NTP} \IItalic, with a comma\nand more\i
9:59:59.50 2:34:56.78 {NTP} \I\B"Both" | = {x} <y>\n2\b\i
2:34:57.00 2:34:58.00 {NTP} a
2:35:00.00 2:35:01.00 {NTP} 
1:00:00.00 0:00:00.00 {NTP} odd times
2:36:00.00 2:36:90.00 {NTP} second\nthird
