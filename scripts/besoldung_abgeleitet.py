"""The civil servants' tables of January to June 1997, derived from the public Ost tables, and the
checks every derived table of the data folder must pass. Used by tarife_erzeugen.py; every
check stops the generator on the first mismatch.

Amounts are whole Pfennig (int). Rounding half up to the Pfennig is written out as integer
arithmetic so that no float decides a cell."""
import collections, sys


def pf(text):
    """'2006.49' -> 200649, exact."""
    mark, _, pfennig = text.strip().partition('.')
    return int(mark) * 100 + int((pfennig + '00')[:2])


def dm(pfennig):
    return '%d.%02d' % divmod(pfennig, 100)


def rund(pfennig, zaehler, nenner):
    """pfennig * zaehler / nenner, rounded half up to the Pfennig (amounts are positive)."""
    return (2 * pfennig * zaehler + nenner) // (2 * nenner)


def rund_dm(pfennig, zaehler, nenner):
    """pfennig * zaehler / nenner, rounded half up to the whole DM (in Pfennig)."""
    return (2 * pfennig * zaehler + 100 * nenner) // (200 * nenner) * 100


def erhoehen(pfennig, promille):
    """A linear raise per cell, e.g. 1013 for +1.3 %, rounded half up."""
    return rund(pfennig, promille, 1000)


def ost_regel(west, prozent):
    """The Ost table of a group from its West table: the top step is p times the West top step,
    rounded up; each lower step lies below the next by p times the West step difference,
    rounded down. `west` maps step -> Pfennig; steps must be consecutive."""
    stufen = sorted(west)
    assert stufen == list(range(stufen[0], stufen[-1] + 1)), stufen
    oben = stufen[-1]
    ost = {oben: -((-west[oben] * prozent) // 100)}
    for s in reversed(stufen[:-1]):
        ost[s] = ost[s + 1] - (west[s + 1] - west[s]) * prozent // 100
    return ost


def halt(text):
    sys.exit('Ableitung der Besoldungstabellen: ' + text)


def gruppentabelle(zeilen, **filter):
    """group -> {step: Pfennig} of the rows matching every filter column."""
    t = collections.defaultdict(dict)
    for r in zeilen:
        if all(r[k] == v for k, v in filter.items()):
            t[r['besoldungsgruppe']][int(r['stufe']) if r['stufe'] else 1] = pf(r['betrag_dm'])
    return t


# The three places of the 1995 West table with a one-Pfennig choice, as the data folder words
# them in its column `unsicherheit`. The table holds the lower value of each pair (a cell, or a
# step difference); this gives the table with the higher one.
def _alternative(gruppe, tabelle):
    t = dict(tabelle)
    if gruppe == 'A 2':    # step 8: 2006.49 | 2006.50
        t[8] += 1
    elif gruppe == 'A 7':  # every step difference of steps 1 to 12: 74.50 | 74.51
        for s in range(1, 12):
            t[s] = t[12] - (12 - s) * (t[12] - t[11] + 1)
    elif gruppe == 'A 9':  # step 4 to 5: 90.00 | 90.01, so steps 1 to 4 one Pfennig lower
        for s in range(1, 5):
            t[s] -= 1
    else:
        halt('keine Alternative bekannt für ' + gruppe)
    return t


class West1995:
    """The West Grundgehalt of 1.5.1995 to 28.2.1997 and the Ortszuschlag of that period, each
    ambiguous place decided, checked against both Ost tables of 1995."""

    def __init__(self, grund_west95, oz_west95, grund, oz_alt):
        self.ost82 = gruppentabelle(grund, region='Ost', gueltig_ab='1995-05-01')
        self.ost84 = gruppentabelle(grund, region='Ost', gueltig_ab='1995-10-01')
        self.grund = gruppentabelle(grund_west95, region='West')
        self.unsicher = []  # (group, step, chosen, other) for QUELLEN.md
        self.unsicher_oz = []
        self._pruefen_und_entscheiden(grund_west95)
        self.oz = self._ortszuschlag(oz_west95, oz_alt)

    def _passt(self, gruppe, tabelle):
        return ost_regel(tabelle, 82) == self.ost82[gruppe] and \
            ost_regel(tabelle, 84) == self.ost84[gruppe]

    def _pruefen_und_entscheiden(self, zeilen):
        if set(self.grund) != set(self.ost84) or set(self.grund) != set(self.ost82):
            halt('die Gruppen der West-Tabelle 1995 und der Ost-Tabellen 1995 sind verschieden')
        mehrdeutig = {r['besoldungsgruppe'] for r in zeilen if r['status'] == 'derived_ambiguous'}
        for gruppe, tabelle in self.grund.items():
            if gruppe not in mehrdeutig:
                if not self._passt(gruppe, tabelle):
                    halt('%s 1995 ergibt die Ost-Tabellen 1995 nicht' % gruppe)
                continue
            anders = _alternative(gruppe, tabelle)
            passend = [t for t in (tabelle, anders) if self._passt(gruppe, t)]
            if not passend:
                halt('%s 1995: keiner der Kandidaten ergibt die Ost-Tabellen 1995' % gruppe)
            # The Ost rule decides if only one candidate gives both Ost tables; else the lower
            # value of the pair, which the table holds.
            gewaehlt = passend[0]
            other = anders if gewaehlt is tabelle else tabelle
            self.grund[gruppe] = gewaehlt
            for s in sorted(gewaehlt):
                if gewaehlt[s] != other[s]:
                    self.unsicher.append((gruppe, s, gewaehlt[s], other[s],
                                          len(passend) == 1))

    def _ortszuschlag(self, oz_west95, oz_alt):
        """Tarifklasse -> {'stufe_1', 'stufe_2', 'stufe_3_1_kind', 'weiter'}: of two candidates
        that both fit the Ost amounts of 82 % and 84 %, the lower."""
        ost = {}
        for r in oz_alt:
            if r['bemessungssatz_ost_prozent'] in ('82', '84'):
                ost[(r['bemessungssatz_ost_prozent'], r['tarifklasse'], r['komponente'])] = \
                    pf(r['betrag_dm'])
        oz = collections.defaultdict(dict)
        for r in oz_west95:
            if r['tarifklasse'] in ('Ia', 'Ib', 'Ic', 'II') and r['stufe'] in ('1', '2', '3'):
                klasse, komp = r['tarifklasse'], ('stufe_1', 'stufe_2', 'stufe_3_1_kind')[
                    int(r['stufe']) - 1]
            elif r['tarifklasse'] == 'Kind':
                klasse, komp = 'alle', 'erhoehung_je_weiteres_kind'
            else:
                continue  # fixed add-ons of A 1 to A 5 and the amounts of § 39 (2): no field
            kandidaten = [pf(k) for k in r['betrag_dm_kandidaten'].split('|')]
            # The Ost amounts of the Ortszuschlag follow no single rounding rule (some cells
            # are p times West rounded up, others rounded half up or down), so a candidate must
            # give both Ost amounts to within one Pfennig.
            passend = [k for k in kandidaten
                       if all(abs(rund(k, p, 100) - ost[(str(p), klasse, komp)]) <= 1
                              for p in (82, 84))]
            if not passend:
                halt('Ortszuschlag West 1995 %s %s trifft die Ost-Beträge nicht' % (klasse, komp))
            wahl = min(passend)
            if len(kandidaten) > 1:
                self.unsicher_oz.append((klasse, komp, wahl, [k for k in kandidaten if k != wahl],
                                         len(passend) == 1))
            oz[klasse][komp] = wahl
        weiter = oz.pop('alle')['erhoehung_je_weiteres_kind']
        for klasse in oz:
            oz[klasse]['weiter'] = weiter
        return dict(oz)


def erhoeht(tabellen, promille):
    """Every cell of group -> {step: Pfennig} raised and rounded half up."""
    return {g: {s: erhoehen(v, promille) for s, v in t.items()} for g, t in tabellen.items()}


def ost_tabellen(west, prozent):
    return {g: ost_regel(t, prozent) for g, t in west.items()}


def oz_erhoeht(oz, promille):
    return {k: {c: erhoehen(v, promille) for c, v in w.items()} for k, w in oz.items()}


def oz_ost(oz, prozent):
    return {k: {c: rund(v, prozent, 100) for c, v in w.items()} for k, w in oz.items()}


def pruefen_west_juli97(west97_zeilen, grund):
    """West 1.7.1997 (derived) times 0.84 / 0.85 / 1.015, each rounded half up, gives Ost
    1.7.1997, Ost 1.9.1997 and West 1.1.1998 in every cell; Ost 1998 is West 1998 times 0.85 and
    0.865."""
    west97 = gruppentabelle(west97_zeilen, region='West')
    ziele = [(84, 100, gruppentabelle(grund, region='Ost', gueltig_ab='1997-07-01'), 'Ost 1.7.1997'),
             (85, 100, gruppentabelle(grund, region='Ost', gueltig_ab='1997-09-01'), 'Ost 1.9.1997'),
             (1015, 1000, gruppentabelle(grund, region='West', gueltig_ab='1998-01-01'),
              'West 1.1.1998')]
    for zaehler, nenner, ziel, name in ziele:
        _gleich(west97, ziel, lambda v: rund(v, zaehler, nenner), 'West 1.7.1997 -> ' + name)
    west98 = gruppentabelle(grund, region='West', gueltig_ab='1998-01-01')
    for prozent, ab in ((850, '1998-01-01'), (865, '1998-09-01')):
        _gleich(west98, gruppentabelle(grund, region='Ost', gueltig_ab=ab),
                lambda v: rund(v, prozent, 1000), 'West 1998 -> Ost ab ' + ab)
    return sum(len(t) for t in west97.values())


def _gleich(quelle, ziel, f, name):
    if set(quelle) != set(ziel):
        halt('%s: die Gruppen sind verschieden' % name)
    for g, t in quelle.items():
        if set(t) != set(ziel[g]):
            halt('%s: %s hat andere Stufen' % (name, g))
        for s, v in t.items():
            if f(v) != ziel[g][s]:
                halt('%s: %s Stufe %d gibt %s statt %s' % (name, g, s, dm(f(v)), dm(ziel[g][s])))


ANW_SPALTEN = ('grundbetrag_vor_26_dm', 'grundbetrag_ab_26_dm', 'verheiratetenzuschlag_62_1_dm')


def anwaerter_west97(anw):
    """The West candidates' amounts of 1997 (whole DM): for each amount the one whole-DM value W
    with round(W * 0.82) = Ost 1.4.1995, round(W * 0.84) = Ost 1.10.1995, round(W * 0.85) = Ost
    1.9.1997 and round(W * 1.015) = West 1.1.1998. That one value fits all four shows that the
    candidates' amounts were not raised in 1997 (the Ost table of 84 % stayed in force until
    31.8.1997). Stops unless every amount has exactly one such value."""
    t = collections.defaultdict(dict)
    for r in anw:
        t[(r['region'], r['gueltig_ab'])][r['eingangsamt']] = r
    bedingungen = ((('Ost', '1995-04-01'), 82, 100), (('Ost', '1995-10-01'), 84, 100),
                   (('Ost', '1997-09-01'), 85, 100), (('West', '1998-01-01'), 1015, 1000))
    west = {}
    for amt in t[('West', '1998-01-01')]:
        werte = []
        for spalte in ANW_SPALTEN:
            ziel98 = pf(t[('West', '1998-01-01')][amt][spalte])
            loesungen = [w for w in range(ziel98 - 10000, ziel98 + 100, 100)
                         if all(rund_dm(w, z, n) == pf(t[k][amt][spalte])
                                for k, z, n in bedingungen)]
            if len(loesungen) != 1:
                halt('Anwärter West 1997 %s %s: %d Lösungen' % (amt, spalte, len(loesungen)))
            werte.append(loesungen[0])
        west[amt] = werte
    return west
