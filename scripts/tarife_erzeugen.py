#!/usr/bin/env python3
"""Writes data/tarife/lonvirJJ_N.tsv from the public pay tables collected in the shared data
folder (../shared/data of the worktrees). Run by hand when those tables grow; the TSV files
are the sources the build compiles. Only published amounts, amounts derived by the stated
method of the data folder (status derived_unique), and sums of published components are
written; every other cell stays empty (0). Every derivation is checked against the published
tables on each run, which stops on a mismatch.
Usage: tarife_erzeugen.py [--pruefen] DATENORDNER ZIELORDNER
With --pruefen nothing is written: the sources are generated into a temporary folder and compared
with those in ZIELORDNER (exit status 1 on any difference); the build's tests run it so."""
import csv, sys, os, collections, filecmp, tempfile
from decimal import Decimal, ROUND_HALF_UP

import besoldung_abgeleitet as abl

pruefen = sys.argv[1] == '--pruefen'
daten, ziel = sys.argv[1 + pruefen], sys.argv[2 + pruefen]
if pruefen:
    vorhanden, ziel = ziel, tempfile.mkdtemp(prefix='tarife_')
# Public tables found for this project and kept beside the tariff sources (data/tarife/quellen).
QUELLEN = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), 'data', 'tarife',
                       'quellen')

def lesen(name, ordner=None):
    return list(csv.DictReader(open(os.path.join(ordner or daten, name), encoding='utf-8')))

# Staff class 0: the 21 groups of the row 5 list, in the order of the tariff block.
A_GRUPPEN = ['A 1', 'A 2', 'A 3', 'A 4', 'A 5', 'A 5', 'A 6', 'A 7', 'A 8', 'A 9', 'A 9', 'A 9',
             'A 10', 'A 11', 'A 12', 'A 13', 'A 13', 'A 13', 'A 14', 'A 15', 'A 16']
A_NAMEN = ['A 1', 'A 2', 'A 3', 'A 4', 'A 5 eD', 'A 5 mD', 'A 6', 'A 7', 'A 8', 'A 9 mD',
           'A 9 mD + Z', 'A 9 gD', 'A 10', 'A 11', 'A 12', 'A 13 gD', 'A 13 hD', 'A 13 + Z',
           'A 14', 'A 15', 'A 16']
B_GRUPPEN = ['B %d' % i for i in range(1, 12)]
C_GRUPPEN = ['C %d' % i for i in range(1, 5)]
R_GRUPPEN = ['R %d' % i for i in range(1, 11)]
ANW = ['A 1 bis A 4', 'A 5 bis A 8', 'A 9 bis A 11', 'A 12', 'A 13',
       'A 13 + Zulage (Vorbem. Nr. 27 Abs. 1) oder R 1']
# Staff class 6 (BAT VKA): the 17 groups of its row 5 list; classes 5 and 6 share this order.
# Vc stands at position 9, so that the holiday pay of the groups above 8 is that of X to Vc.
VKA = ['I', 'Ia', 'Ib', 'IIa', 'IIb', 'III', 'IVa', 'IVb', 'Vb', 'Vc', 'VIa', 'VIb', 'VII', 'VIII',
       'IXa', 'IX', 'X']

def tarifklasse(gruppe):
    if gruppe in ('B 1', 'B 2', 'C 1', 'C 2', 'C 3', 'R 1', 'R 2') or gruppe in (
            'A 13', 'A 14', 'A 15', 'A 16'):
        return 'Ib'
    if gruppe[0] in 'BCR':
        return 'Ia'
    n = int(gruppe.split()[1])
    return 'II' if n <= 8 else 'Ic'

def dm(x):
    return '%.2f' % x if x else ''

grund = lesen('besoldung_grundgehalt.csv')
west97_zeilen = lesen('besoldung_grundgehalt_west_abgeleitet.csv')
oz_alt = lesen('besoldung_ortszuschlag_alt.csv')
fz = lesen('besoldung_familienzuschlag.csv')
fz_west97 = lesen('besoldung_zuschlaege_west_1997_abgeleitet.csv')
anw = lesen('besoldung_anwaerter.csv')
bat = lesen('bat_grundverguetung_west.csv')
grund_west95 = lesen('besoldung_grundgehalt_west_1995_abgeleitet.csv')
oz_west95 = lesen('besoldung_ortszuschlag_west_1995_abgeleitet.csv')
bat_zul = lesen('bat_zulage_ortszuschlag_west.csv')

def stufen(rows, region, ab, gruppe):
    out = {}
    for r in rows:
        if r['region'] == region and r['gueltig_ab'] == ab and r['besoldungsgruppe'] == gruppe:
            if r.get('status', 'published') not in ('published', 'derived_unique'):
                continue
            s = int(r['stufe']) - 1 if r['stufe'] else 0
            out[s] = float(r['betrag_dm'])
    return out

def oz_alt_werte(ab, gruppe):
    kl = tarifklasse(gruppe)
    d = {}
    for r in oz_alt:
        if r['gueltig_ab'] != ab:
            continue
        if r['tarifklasse'] == kl:
            d[r['komponente']] = float(r['betrag_dm'])
        if r['komponente'] == 'erhoehung_je_weiteres_kind':
            d['weiter'] = float(r['betrag_dm'])
    if 'stufe_1' not in d:
        return {}
    e = {15: d['stufe_1'], 16: round(d['stufe_2'] - d['stufe_1'], 2)}
    kind1 = round(d['stufe_3_1_kind'] - d['stufe_2'], 2)
    for k in range(1, 7):
        e[16 + k] = round(kind1 + (k - 1) * d['weiter'], 2)
    return e

def fz_werte(region, ab, gruppe, west97abgeleitet=False):
    klein = gruppe.startswith('A ') and int(gruppe.split()[1]) <= 8
    d = {}
    if west97abgeleitet:
        for r in fz_west97:
            if r['tabelle'] != 'familienzuschlag' or not r['betrag_dm']:
                continue
            d[(r['komponente_oder_fundstelle'], r['besoldungsgruppen'])] = float(r['betrag_dm'])
    else:
        for r in fz:
            if r['region'] == region and r['gueltig_ab'] == ab:
                d[(r['komponente'], r['besoldungsgruppen'])] = float(r['betrag_dm'])
    g = 'A 1 bis A 8' if klein else 'übrige Besoldungsgruppen'
    s1 = d.get(('stufe_1_verheiratet (§ 40 Abs. 1)', g))
    s2 = d.get(('stufe_2 (§ 40 Abs. 2, 1 Kind)', g))
    zweites = d.get(('erhoehung_zweites_kind', 'alle'))
    weitere = d.get(('erhoehung_drittes_und_jedes_weitere_kind', 'alle'))
    e = {}
    if s1:
        e[16] = s1
    if s1 and s2:
        e[17] = round(s2 - s1, 2)
        if zweites:
            e[18] = round(e[17] + zweites, 2)
            if weitere:
                for k in range(3, 7):
                    e[16 + k] = round(e[18] + (k - 2) * weitere, 2)
    return e

def anw_werte(region, ab, gruppe):
    for r in anw:
        if r['region'] == region and r['gueltig_ab'] == ab and r['eingangsamt'] == gruppe:
            return {0: float(r['grundbetrag_vor_26_dm']), 1: float(r['grundbetrag_ab_26_dm']),
                    16: float(r['verheiratetenzuschlag_62_1_dm'])}
    return {}

def pfennig(x):
    return Decimal(x).quantize(Decimal('0.01'), rounding=ROUND_HALF_UP)

def vka_fortgeschrieben():
    """BAT VKA West 1997 and 1998 from the complete table of VergTV Nr. 30 (1.5.1995): VergTV
    Nr. 31 raised every cell by 1.3 % (1997), VergTV Nr. 32 every cell of that by 1.5 % (1998),
    each rounded half up to the Pfennig. Stops unless the result reproduces every published or
    uniquely derived 1995/1997/1998 cell of the data folder and every cell of the published BAT-O VKA
    table of 1.4.1999 (West 1998 raised by 3.1 %, at 86.5 %, rounded once)."""
    t95 = collections.defaultdict(dict)
    for r in lesen('bat_vka_1995.csv', QUELLEN):
        t95[r['verguetungsgruppe']][int(r['stufe'])] = Decimal(r['betrag_dm'])
    t = {1997: {}, 1998: {}}
    for g, zellen in t95.items():
        t[1997][g] = {s: pfennig(v * Decimal('1.013')) for s, v in zellen.items()}
        t[1998][g] = {s: pfennig(v * Decimal('1.015')) for s, v in t[1997][g].items()}
    t[1995] = t95
    for r in bat:
        jahr = int(r['gueltig_ab'][:4])
        if jahr in t and r['status'] in ('published_secondary', 'derived_unique') and \
                t[jahr][r['verguetungsgruppe']][int(r['stufe'])] != Decimal(r['betrag_dm']):
            sys.exit('BAT VKA %s %s Stufe %s weicht ab' % (jahr, r['verguetungsgruppe'], r['stufe']))
    for r in lesen('bat_o_vka_1999.csv', QUELLEN):
        g, s = r['verguetungsgruppe'], int(r['stufe'])
        if g in VKA and g in t[1998] and \
                pfennig(t[1998][g][s] * Decimal('1.031') * Decimal('0.865')) != Decimal(r['betrag_dm']):
            sys.exit('BAT-O VKA 1999 %s Stufe %d passt nicht zur Tabelle 1998' % (g, s))
    return t

# Allgemeine Zulage and Ortszuschlag (Stufe 1, as the calculator pages show it) by the tier of the
# group: X to Vc with Tarifklasse II, Vb to III with Tarifklasse Ic. VIII takes the amount of the
# tier VIII to Vc; IXa to X stand in a lower tier of the Zulage whose amount was not found.
ZULAGE_X_VC = ('Vc', 'VIb', 'VII', 'VIII')
OZ_KLASSE_II = ('Vc', 'VIb', 'VII', 'VIII', 'IXa', 'IX', 'X')
VB_III = ('Vb', 'IVb', 'IVa', 'III')

def bat_werte(jahr, gruppe, fortgeschrieben):
    ab = '%d-01-01' % jahr
    e = {}
    for r in bat:
        if r['gueltig_ab'] == ab and r['verguetungsgruppe'] == gruppe and \
                r['status'] in ('published_secondary', 'derived_unique'):
            e[int(r['stufe']) - 1] = float(r['betrag_dm'])
    status = {r['status'] for r in bat if r['gueltig_ab'] == ab and r['verguetungsgruppe'] == gruppe}
    quelle = 'BAT%d-%s' % (jahr % 100, '+'.join(sorted(status)))
    if not e and gruppe in fortgeschrieben[jahr]:
        e = {s - 1: float(v) for s, v in fortgeschrieben[jahr][gruppe].items()}
        quelle = 'BAT%d-VKA95' % (jahr % 100)
    if not e:
        return e, ''
    for r in bat_zul:
        if r['gueltig_ab'] != ab or r['status'] not in ('published_secondary', 'derived_unique'):
            continue
        if r['komponente'] == 'allgemeine_zulage':
            if (gruppe in ZULAGE_X_VC and 'X-Vc' in r['gilt_fuer_verguetungsgruppe']) or \
                    (gruppe in VB_III and r['gilt_fuer_verguetungsgruppe'] == 'III (Vb-III group)'):
                e[25] = float(r['betrag_dm'])
        if r['komponente'] == 'ortszuschlag_angezeigt':
            if (gruppe in OZ_KLASSE_II and r['tarifklasse_oz'] == 'II') or \
                    (gruppe in VB_III and r['tarifklasse_oz'] == 'Ic'):
                e[15] = float(r['betrag_dm'])
    return e, quelle

class Datei:
    def __init__(self):
        self.saetze = {}
    def setzen(self, nr, name, werte, quelle):
        if not any(werte.get(i) for i in range(27)):
            return
        self.saetze[nr] = (name, werte, quelle)
    def schreiben(self, pfad, titel):
        with open(pfad, 'w', encoding='utf-8') as f:
            f.write('# %s\n' % titel)
            f.write('# Erzeugt von scripts/tarife_erzeugen.py aus den öffentlichen Tabellen; Quellen: QUELLEN.md.\n')
            f.write('# Satz, Gruppe, Stufe 1 .. Stufe 15 o.a., OZ-Grundbetr., Verh.Zuschl., 1 .. 6 Kinder,\n')
            f.write('# in Unterk. II, in UnterK. Ic, Allg.St.Zul., Überst.Verg. (DM; leer = 0), Quelle.\n')
            f.write('# West-Hälfte Sätze 1 bis 300, Ost-Hälfte 301 bis 600 (West + 300).\n')
            for nr in sorted(self.saetze):
                name, w, q = self.saetze[nr]
                f.write('\t'.join([str(nr), name] + [dm(w.get(i, 0)) for i in range(27)] + [q]) + '\n')

def beamte(datei, region, ab_grund, oz, quelle, west97=False, ost=False, anw_ab=None,
           fz_ab=None, nur_anwaerter=False):
    off = 300 if ost else 0
    rows = west97_zeilen if west97 else grund
    regionname = 'West' if not ost else 'Ost'
    for base, gruppen, namen in () if nur_anwaerter else (
            (1, A_GRUPPEN, A_NAMEN), (23, B_GRUPPEN, B_GRUPPEN), (35, C_GRUPPEN, C_GRUPPEN),
            (40, R_GRUPPEN, R_GRUPPEN)):
        for g, (gruppe, name) in enumerate(zip(gruppen, namen)):
            w = dict(stufen(rows, regionname, ab_grund, gruppe))
            if not w:
                continue
            if oz == 'alt':
                w.update(oz_alt_werte(ab_grund, gruppe))
            elif oz == 'fz':
                w.update(fz_werte(regionname, fz_ab or ab_grund, gruppe, west97abgeleitet=west97))
            datei.setzen(base + g + off, name, w, quelle)
    if anw_ab:
        for g, gruppe in enumerate(ANW):
            datei.setzen(51 + g + off, 'Anw. ' + gruppe.split(' (')[0], anw_werte(regionname, anw_ab, gruppe),
                         quelle)

def oz_werte(oz, gruppe):
    """The record fields of the old Ortszuschlag from one table of its class (Pfennig)."""
    d = oz[tarifklasse(gruppe)]
    e = {15: d['stufe_1'], 16: d['stufe_2'] - d['stufe_1']}
    kind1 = d['stufe_3_1_kind'] - d['stufe_2']
    for k in range(1, 7):
        e[16 + k] = kind1 + (k - 1) * d['weiter']
    return {i: v / 100 for i, v in e.items()}

def beamte_abgeleitet(datei, grund_tab, oz, quelle, ost=False):
    """Blocks A, B, C, R (old structure) from derived tables in Pfennig: group -> {step: Pf}
    and the Ortszuschlag by Tarifklasse."""
    off = 300 if ost else 0
    for base, gruppen, namen in ((1, A_GRUPPEN, A_NAMEN), (23, B_GRUPPEN, B_GRUPPEN),
                                 (35, C_GRUPPEN, C_GRUPPEN), (40, R_GRUPPEN, R_GRUPPEN)):
        for g, (gruppe, name) in enumerate(zip(gruppen, namen)):
            w = {s - 1: v / 100 for s, v in grund_tab[gruppe].items()}
            w.update(oz_werte(oz, gruppe))
            datei.setzen(base + g + off, name, w, quelle)

def anwaerter_abgeleitet(datei, werte, quelle):
    """The West candidates' block from the derived amounts (Pfennig) per entry grade."""
    for g, gruppe in enumerate(ANW):
        vor26, ab26, verh = werte[gruppe]
        datei.setzen(51 + g, 'Anw. ' + gruppe.split(' (')[0],
                     {0: vor26 / 100, 1: ab26 / 100, 16: verh / 100}, quelle)

def angestellte(datei, jahr, fortgeschrieben):
    for g, gruppe in enumerate(VKA):
        w, q = bat_werte(jahr, gruppe, fortgeschrieben)
        datei.setzen(79 + g, 'BAT VKA ' + gruppe, w, q)

dateien = {(j, n): Datei() for j in (1997, 1998) for n in range(1, 5)}
# Every relation between the derived and the published civil-servant tables is checked first.
west95 = abl.West1995(grund_west95, oz_west95, grund, oz_alt)
abl.pruefen_west_juli97(west97_zeilen, grund)
anw_west97 = abl.anwaerter_west97(anw)
# 1997 file 1 (January, February): Ost table of 1.10.1995 (84 %, old structure), still in force;
# West the table of 1.5.1995 derived from both Ost tables of 1995 (no raise in 1996).
beamte(dateien[1997, 1], 'Ost', '1995-10-01', 'alt', 'BesUeV95-84', ost=True, anw_ab='1995-10-01')
beamte_abgeleitet(dateien[1997, 1], west95.grund, west95.oz, 'West95-abgeleitet')
# 1997 file 2 (March to June): West raised by 1.3 % per cell, Ost 84 % of that by the Ost rule.
# The candidates' amounts were not raised: the Ost table of 1.10.1995 stays in force to August.
west_maerz = abl.erhoeht(west95.grund, 1013)
oz_maerz = abl.oz_erhoeht(west95.oz, 1013)
beamte_abgeleitet(dateien[1997, 2], west_maerz, oz_maerz, 'West97M-abgeleitet')
beamte_abgeleitet(dateien[1997, 2], abl.ost_tabellen(west_maerz, 84), abl.oz_ost(oz_maerz, 84),
                  'Ost97M-abgeleitet', ost=True)
for n in range(1, 5):
    anwaerter_abgeleitet(dateien[1997, n], anw_west97, 'AnwWest97-abgeleitet')
for n in (2, 3):
    beamte(dateien[1997, n], 'Ost', '1995-10-01', None, 'BesUeV95-84', ost=True,
           anw_ab='1995-10-01', nur_anwaerter=True)
# 1997 file 3 (July, August): the reform tables of 1.7.1997; file 4 from September.
beamte(dateien[1997, 3], 'West', '1997-07-01', 'fz', 'West97-abgeleitet', west97=True)
beamte(dateien[1997, 3], 'Ost', '1997-07-01', 'fz', 'BesUeV97-84', ost=True)
beamte(dateien[1997, 4], 'West', '1997-07-01', 'fz', 'West97-abgeleitet', west97=True)
beamte(dateien[1997, 4], 'Ost', '1997-09-01', 'fz', 'BesUeV97-85', ost=True, anw_ab='1997-09-01')
vka = vka_fortgeschrieben()
for n in range(1, 5):
    angestellte(dateien[1997, n], 1997, vka)
# 1998 file 1 from January, file 2 from September (Ost 86.5 %); files 3 and 4 inactive copies.
for n in range(1, 5):
    beamte(dateien[1998, n], 'West', '1998-01-01', 'fz', 'BBVAnpG98-West', anw_ab='1998-01-01')
    ab = '1998-01-01' if n == 1 else '1998-09-01'
    beamte(dateien[1998, n], 'Ost', ab, 'fz', 'BBVAnpG98-Ost85' if n == 1 else 'BBVAnpG98-Ost865',
           ost=True, anw_ab=ab)
    angestellte(dateien[1998, n], 1998, vka)

titel = {
    (1997, 1): 'Lonvir97.1tr: Tarife ab Januar 1997',
    (1997, 2): 'Lonvir97.2tr: Tarife ab März 1997 (Besoldungserhöhung 1.3.1997)',
    (1997, 3): 'Lonvir97.3tr: Tarife ab Juli 1997 (Dienstrechtsreform)',
    (1997, 4): 'Lonvir97.4tr: Tarife ab September 1997 (Ost 85 %)',
    (1998, 1): 'Lonvir98.1tr: Tarife ab Januar 1998',
    (1998, 2): 'Lonvir98.2tr: Tarife ab September 1998 (Ost 86,5 %)',
    (1998, 3): 'Lonvir98.3tr: inaktiv, Abschrift der Tarife ab September 1998',
    (1998, 4): 'Lonvir98.4tr: inaktiv, Abschrift der Tarife ab September 1998',
}
for (j, n), d in dateien.items():
    d.schreiben(os.path.join(ziel, 'lonvir%d_%d.tsv' % (j % 100, n)), titel[j, n])
    print(j, n, len(d.saetze))

# QUELLEN.md: the fixed head and, per file, which groups of each block hold amounts.
KLASSEN = [(0, 1, 21, 'Bes.Ordn. A'), (1, 23, 11, 'Bes.Ordn. B'), (2, 35, 4, 'Bes.Ordn. C'),
           (3, 40, 10, 'Bes.Ordn. R'), (4, 51, 6, 'Anwärter'), (5, 58, 20, 'BAT Bund/Länder'),
           (6, 79, 17, 'BAT VKA'), (7, 97, 14, 'BAT KR'), (8, 112, 17, 'Arbeiter B/L/VKA'),
           (9, 129, 18, 'Kraftfahrer Bund'), (10, 147, 16, 'Kraftfahrer Land'),
           (11, 164, 16, 'Kraftfahrer VKA'), (12, 181, 7, 'Auszubildende'), (13, 191, 20, 'AVR Kirche'),
           (14, 212, 20, 'AVR Caritas'), (15, 233, 21, 'AVR Parität.Wohlfahrtsv.'),
           (16, 255, 15, 'Deutsche Bahn AG'), (17, 271, 20, 'Sondertarifliche Angest.')]
kopf = open(os.path.join(os.path.dirname(os.path.abspath(__file__)), 'quellen_kopf.md'),
            encoding='utf-8').read()
with open(os.path.join(ziel, 'QUELLEN.md'), 'w', encoding='utf-8') as f:
    f.write(kopf)
    for (j, n), d in sorted(dateien.items()):
        f.write('\n### lonvir%d_%d.tsv (Lonvir%d.%dtr)\n\n' % (j % 100, n, j % 100, n))
        f.write('| Personalart | West | Quelle West | Ost | Quelle Ost |\n|---|---|---|---|---|\n')
        for k, b, anzahl, name in KLASSEN:
            zellen = []
            for off in (0, 300):
                belegt = [d.saetze[b + g + off] for g in range(anzahl) if b + g + off in d.saetze]
                quellen = sorted({q for _, _, q in belegt})
                zellen.append('%d von %d' % (len(belegt), anzahl) if belegt else '0 (leer)')
                zellen.append(', '.join(quellen) if quellen else 'keine öffentliche Quelle gefunden')
            f.write('| %d %s | %s |\n' % (k, name, ' | '.join(zellen)))

# The cells of the derived West tables of 1995 whose amount is a choice between two candidates.
A_ZEILE = {g: A_GRUPPEN.index(g) + 1 for g in A_GRUPPEN}
with open(os.path.join(ziel, 'QUELLEN.md'), 'a', encoding='utf-8') as f:
    f.write('\n## Zellen mit einer Wahl (West 1.5.1995, daraus März bis Juni 1997)\n\n')
    f.write('Wo die Ost-Tabellen 1995 zwei Werte zulassen, steht der Wert, den die Regel der '
            'Ost-Tabellen\n(ceil(p · oberste Stufe) − Σ floor(p · Stufenabstand)) allein '
            'ergibt; gibt sie beide, der niedrigere der beiden Werte, die der Datenordner nennt\n'
            '(bei A 7 und A 9 ist das der Stufenabstand, 74,50 | 74,51 und 90,00 | 90,01 DM, so '
            'dass sich\nmehrere Stufen mit ihm verschieben). Die Erhöhung um 1,3 % und die Ost-Tabelle '
            'März bis Juni 1997 folgen dem gewählten Wert.\n\n')
    f.write('| Gruppe | Stufe | eingetragen 1995 | anderer Wert 1995 | März 1997 (eingetragen / anders) '
            '| entschieden durch |\n|---|---|---|---|---|---|\n')
    for gruppe, s, wahl, anders, entschieden in west95.unsicher:
        f.write('| %s | %d | %s | %s | %s / %s | %s |\n' % (
            gruppe, s, abl.dm(wahl), abl.dm(anders), abl.dm(abl.erhoehen(wahl, 1013)),
            abl.dm(abl.erhoehen(anders, 1013)),
            'Ost-Regel' if entschieden else 'beide passen (±%d Pf)' % abs(wahl - anders)))
    f.write('\nOrtszuschlag West 1.5.1995: die Ost-Beträge folgen keiner einheitlichen Rundung; '
            'eingetragen ist\nvon zwei Werten, die beide Ost-Beträge auf einen Pfennig treffen, '
            'der niedrigere (±1 Pf).\n\n| Tarifklasse | Betrag | eingetragen | anderer Wert |\n'
            '|---|---|---|---|\n')
    for klasse, komp, wahl, andere, _ in west95.unsicher_oz:
        f.write('| %s | %s | %s | %s |\n' % (klasse, komp.replace('_', ' '), abl.dm(wahl),
                                             ', '.join(abl.dm(a) for a in andere)))

if pruefen:
    abweichend = [n for n in sorted(os.listdir(ziel))
                  if not filecmp.cmp(os.path.join(ziel, n), os.path.join(vorhanden, n), shallow=False)]
    if abweichend:
        sys.exit('Die Tarifquellen in %s weichen vom Erzeugten ab: %s' % (vorhanden, ', '.join(abweichend)))
    print('Tarifquellen stimmen mit den öffentlichen Tabellen überein.')
