// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the report: light, dark, and on paper.
#pragma once

#include <string_view>

namespace kervol {

/// Curves differ by colour and by dashes, so that they can be told apart in grey.
inline constexpr std::string_view PageStyle = R"css(
:root{color-scheme:light dark;--ground:#fff;--panel:#f6f7f9;--text:#1d2127;--soft:#5b6470;--line:#d9dde3;
--c1:#267acc;--c2:#d53e2d;--c3:#1a945c;--c4:#895acd;--c5:#b66d00;--c6:#00818e}
@media (prefers-color-scheme:dark){:root{--ground:#15181d;--panel:#1d2127;--text:#e6e9ee;--soft:#a3acb8;
--line:#363c45;--c1:#5aa7ee;--c2:#ff7a68;--c3:#48c48a;--c4:#b48cf2;--c5:#eda53c;--c6:#3cc3d0}}
*{box-sizing:border-box}
body{margin:0;background:var(--ground);color:var(--text);font:15px/1.45 system-ui,"Segoe UI",Roboto,"DejaVu Sans",sans-serif}
main{max-width:1240px;margin:0 auto;padding:28px 24px 40px}
header{border-bottom:2px solid var(--line);padding-bottom:14px;margin-bottom:8px}
h1{font-size:28px;line-height:1.2;margin:2px 0 6px}
h2{font-size:19px;margin:34px 0 12px}
h3{font-size:15px;margin:0 0 8px}
.panel p{margin:0 0 8px}.panel table+p{margin-top:12px}
.panel+.columns,.columns+.panel{margin-top:20px}
.soft{color:var(--soft);margin:0}
.columns{display:grid;grid-template-columns:repeat(auto-fill,minmax(min(100%,480px),1fr));gap:20px 28px;align-items:start}
figure,.panel{margin:0;background:var(--panel);border:1px solid var(--line);border-radius:8px;padding:12px}
figure svg{display:block;width:100%;height:auto;max-height:560px}
figcaption{color:var(--soft);font-size:13px;padding-top:8px}
table{border-collapse:collapse;width:100%;font-variant-numeric:tabular-nums}
th,td{text-align:left;padding:4px 10px 4px 0;border-bottom:1px solid var(--line);vertical-align:top}
tr:last-child>td,tr:last-child>th{border-bottom:0}
thead th{color:var(--soft);font-weight:600;font-size:13px;vertical-align:bottom;border-bottom:1px solid var(--soft)!important}
tbody th{font-weight:400;color:var(--soft)}
td.n,th.n{text-align:right;white-space:nowrap}
tr.group th{color:var(--text);font-weight:600;padding-top:12px}
td{overflow-wrap:anywhere}
.wide{overflow-x:auto}
.full{grid-column:1/-1}
.narrow{max-width:860px}
.key{display:block}
.key span{white-space:nowrap;margin-right:14px}
.key i{-webkit-print-color-adjust:exact;print-color-adjust:exact;display:inline-block;width:22px;height:4px;border-radius:2px;vertical-align:middle;margin:0 5px 0 0}
ul.boxes{padding-left:20px;margin:0}
ul.boxes li{white-space:pre-line;margin-bottom:6px}
pre{margin:0;font:13px/1.4 ui-monospace,"DejaVu Sans Mono",monospace;overflow-x:auto}
footer{margin-top:36px;padding-top:10px;border-top:1px solid var(--line);color:var(--soft);font-size:13px}
.chart text{fill:var(--text);font:12px system-ui,"Segoe UI",Roboto,"DejaVu Sans",sans-serif}
.chart .title{font-size:14px;font-weight:600}
.chart .tick,.chart .label{fill:var(--soft)}
.chart .grid{stroke:var(--line);fill:none;stroke-width:1}
.chart .axis{stroke:var(--soft);fill:none;stroke-width:1}
.chart .curve{fill:none;stroke-width:1.9;stroke-linejoin:round;stroke-linecap:round}
.chart .bars{fill:var(--c1)}
.c1{stroke:var(--c1)}.c2{stroke:var(--c2);stroke-dasharray:8 4}.c3{stroke:var(--c3);stroke-dasharray:2 4}
.c4{stroke:var(--c4);stroke-dasharray:9 3 2 3}.c5{stroke:var(--c5);stroke-dasharray:5 3}.c6{stroke:var(--c6);stroke-dasharray:12 3 2 3 2 3}
@page{size:A4;margin:13mm}
@media print{:root{color-scheme:light;--ground:#fff;--panel:#fff;--text:#000;--soft:#444;--line:#bbb;
--c1:#1f66ab;--c2:#b92f20;--c3:#13774a;--c4:#6d43b3;--c5:#8f5600;--c6:#00656f}
body{font-size:8.5pt;line-height:1.3}h1{font-size:17pt}h2{font-size:12pt}h3{font-size:9.5pt}th,td{padding:2pt 5pt 2pt 0}thead th{font-size:8pt}
main{max-width:none;padding:0}h2{margin:12pt 0 6pt;break-after:avoid}tr.group{break-after:avoid}
.columns{grid-template-columns:1fr 1fr;gap:8pt}.data{grid-template-columns:2fr 3fr}
figure,.panel,tr,ul.boxes li{break-inside:avoid}figure,.panel{padding:6pt}
figure svg{max-height:75mm}thead{display:table-header-group}}
)css";

}  // namespace kervol
