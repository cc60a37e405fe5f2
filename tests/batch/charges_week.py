#!/usr/bin/env python3
"""A week of the day's charges worked out afresh, for the expected values of the charges test.

The desk's charge formulas written from its rules, not from the C++: each day's trades summed
block by block, Round to 2 decimals with ties to even, the default number text, the balance
chain from one day's closing row to the next. The stock sheet runs the day edition, the index
sheet the sheet edition.

    python3 tests/batch/charges_week.py > tests/batch/ChargesWeek.h
"""

RATES = dict(TOver=10.0, ConCh=2.5, ConChP=5.0, ConChF=2.0, DpCh=0.0005, StkInt=18.0, Other=0.0, StDuty=10.0)
SHEET_BAL = -250.5  # the sheet's balance the test writes before "Cash": a loss

# (day, CP, strike or market, units, traded, cash type); a trade on a day the sheet has open.
TRADES = {
    "20-11-2026": [("C", 1000, 100, 12.125, ""), ("P", 980, -200, 7.5, ""), ("S", 1010, 50, 1005.25, "F"), ("S", 1010, 5, 1000, "F"),
                   ("S", 1010, 30, 1002, "Q"), ("S", 1010, -10, 1004, "Q")],
    "23-11-2026": [("C", 1020, -100, 9.875, ""), ("S", 1010, -50, 1011, "F"), ("S", 1010, 20, 1012, "F"),
                   ("S", 1010, 10, 1003, "Q")],
    "24-11-2026": [("S", 1010, 40, 1000, "F"), ("S", 1010, -40, 1002, "F")],
    "25-11-2026": [],
}
CLOSING = {"20-11-2026": 1012.5, "23-11-2026": 1008, "24-11-2026": 1009.125, "25-11-2026": 1015}


def Round(x, n=2):
    scale = 10.0 ** n
    return round(x * scale) / scale


def text(x):
    if x == 0:
        return "0"
    if float(x).is_integer() and abs(x) < 1e15:
        return str(int(x))
    return "%.15G" % x


def day_of(d):
    return int(d[:2])


def charges(trades, clmtm, opbal, prev, sheet_edition, unticked=(), kept_con=None):
    """The figures of one recalculation; `unticked` holds the indexes of the day's trades left out.
    After a tick (kept_con given) the options' contract charges keep the figure of the load."""
    after_tick = kept_con is not None
    r = RATES
    f = {}
    opt = sorted([t for t in trades if t[0] != "S"], key=lambda t: (t[1], t[0]))
    fut = [t for t in trades if t[0] == "S" and t[4] == "F"]
    cash = [t for t in trades if t[0] == "S" and t[4] == "Q"]
    tick = lambda t: trades.index(t) not in unticked
    f["TxtOpBalInt"] = Round(opbal * r["StkInt"] / 36500) if opbal > 0 else 0
    futu = sum(t[2] for t in fut)
    futt = sum(t[2] * t[3] for t in fut)
    f["TxtFut"] = futu
    if futt != 0:
        f["TxtFutTraded"] = Round(futt / futu)
    pf, pr = prev
    if futu + pf != 0:
        f["TxtFutTraded"] = Round((f.get("TxtFutTraded", 0) * futu + pf * pr) / (futu + pf))
    cashu = sum(t[2] for t in cash)
    casht = sum(t[2] * t[3] for t in cash)
    f["TxtCash"] = cashu
    f["TxtCashTraded"] = Round(casht / cashu) if casht != 0 else 0
    A = [0.0] * 9
    prem = 0.0
    for t in opt:
        units, traded = t[2], t[3]
        p = Round(-units * traded)
        charge = abs(Round(t[1] * units * r["ConCh"] / 100000))
        pint = Round(-p * r["StkInt"] / 36500)
        if tick(t):
            A[1] += charge
            prem += p
            A[2] += pint
        if tick(t) or not (sheet_edition or after_tick):
            A[3] += Round(abs(traded) * abs(units) * r["ConChF"] / 100000)
    for t in fut:
        units, traded = t[2], t[3]
        v = clmtm if after_tick else traded
        if tick(t):
            A[4] += Round((clmtm - traded) * units * r["StkInt"] / 36500)
            A[5] += abs(Round(v * units * r["ConCh"] / 100000))
            A[6] += abs(Round(v * units * r["ConChF"] / 100000))
    cb = cs = 0
    for t in cash:
        units, traded = t[2], t[3]
        if units < 0:
            cs += abs(units)
        else:
            cb += abs(units)
        if tick(t):
            A[7] += Round(abs(units) * traded * r["TOver"] / 100000)
            A[8] += Round(traded * units * r["StkInt"] / 36500)
    f["TxtTotPremInt"] = Round(A[2]) if A[2] > 0 else 0
    f["TxtMrkInt"] = Round(-A[4]) if A[4] < 0 else 0
    f["TxtCashTOver"] = A[7]
    f["TxtDpChgs"] = abs(Round(clmtm * cashu * r["DpCh"]))
    f["TxtFutConChgs"] = Round(A[5])
    f["TxtSDutyOpt"] = Round(A[3], 0)
    f["TxtSDutyFut"] = Round(A[6], 0)
    f["TxtStDutyDel"] = Round(abs(cb - cs) * f["TxtCashTraded"] * r["StDuty"] / 100000)
    f["TxtStDutyNDel"] = Round(((cb + cs) - abs(cb - cs)) * f["TxtCashTraded"] * r["ConChP"] / 100000)
    f["TxtCashInt"] = A[8] if cashu > 0 else 0
    f["TxtOpBal"] = opbal
    other = 0
    f["TxtTotConChgs"] = kept_con if after_tick else Round(A[1])
    if not sheet_edition and not after_tick:
        f["TxtFutureOptionSDuty"] = Round(A[3]) + Round(A[6])
        f["TxtStDuty"] = f["TxtStDutyDel"] + f["TxtStDutyNDel"] + f["TxtFutureOptionSDuty"]
        f["TxtTotalTurnCharges"] = f["TxtTotConChgs"] + f["TxtFutConChgs"] + f["TxtCashTOver"]
        f["TxtTotExpense"] = f["TxtTotalTurnCharges"] + f["TxtStDuty"] + f["TxtDpChgs"]
        f["TxtTotal"] = opbal + f["TxtTotExpense"]
    else:
        f["TxtStDuty"] = f["TxtSDutyOpt"] + f["TxtSDutyFut"] + f["TxtStDutyDel"] + f["TxtStDutyNDel"]
        if after_tick:
            # step B: stamp duty outside the total
            f["TxtTotal"] = Round(f["TxtOpBalInt"] + opbal + f["TxtTotConChgs"] + f["TxtTotPremInt"] +
                                  f["TxtMrkInt"] + f["TxtCashInt"] + f["TxtDpChgs"] + f["TxtFutConChgs"] +
                                  f["TxtCashTOver"] + other)
        else:
            f["TxtTotalTurnCharges"] = f["TxtTotConChgs"] + f["TxtFutConChgs"] + f["TxtCashTOver"]
            f["TxtTotal"] = Round(f["TxtOpBalInt"] + opbal + f["TxtTotalTurnCharges"] + f["TxtMrkInt"] +
                                  f["TxtCashInt"] + f["TxtDpChgs"] + other + f["TxtStDuty"] + f["TxtTotPremInt"])
    f["TxtNetBal"] = Round(SHEET_BAL - f["TxtStDuty"] - f["TxtTotal"])
    f["Prem"] = prem
    return f


def week(sheet_edition):
    """Each day loaded, its closing rate typed, saved; the day edition also unticks a cash row."""
    rows = {}  # day -> stored closing row
    out = []
    for day, trades in TRADES.items():
        before = [d for d in rows if d < day]  # Dt is text: the statement's order is the text's
        if sheet_edition:
            opbal = sum(rows[d]["charges"] for d in before)
        else:
            opbal = rows[max(before)]["TxtTotal"] if before else 0
        prev_day = "%02d-11-2026" % (day_of(day) - 1)
        prev = (rows[prev_day]["TxtFut"], rows[prev_day]["ClMtm"]) if prev_day in rows else (0, 0)
        try:
            f = charges(trades, CLOSING[day], opbal, prev, sheet_edition)
        except ZeroDivisionError:
            out.append((day, "divides", {}))
            continue
        step = "typed"
        if not sheet_edition and day == "23-11-2026":
            f = charges(trades, CLOSING[day], opbal, prev, sheet_edition, (3,), f["TxtTotConChgs"])
            step = "unticked"
        out.append((day, step, f))
        f["ClMtm"] = CLOSING[day]
        f["charges"] = (f["TxtCashTOver"] + f["TxtFutConChgs"] + f["TxtDpChgs"] + f["TxtTotConChgs"] +
                        f["TxtTotPremInt"] + f["TxtMrkInt"] + f["TxtCashInt"] + f["TxtOpBalInt"])
        rows[day] = f
    return out


FIELDS = ["TxtOpBal", "TxtOpBalInt", "TxtFut", "TxtFutTraded", "TxtCash", "TxtCashTraded", "TxtTotConChgs",
          "TxtTotPremInt", "TxtFutConChgs", "TxtCashTOver", "TxtDpChgs", "TxtMrkInt", "TxtCashInt", "TxtSDutyOpt",
          "TxtSDutyFut", "TxtStDutyDel", "TxtStDutyNDel", "TxtStDuty", "TxtTotal", "TxtNetBal"]


def main():
    print("// Generated by charges_week.py: the expected figures of a week of charges.")
    print("#pragma once\n\nnamespace charges_week {\n")
    print("struct Figure {\n    const char* day;\n    const char* step;\n    const char* field;\n"
          "    const char* text;\n};\n")
    for name, edition in (("kDay", False), ("kSheet", True)):
        print("inline const Figure %s[] = {" % name)
        for day, step, f in week(edition):
            if step == "divides":
                print('    {"%s", "divides", "", ""},' % day)
            for k in FIELDS:
                if k in f:
                    print('    {"%s", "%s", "%s", "%s"},' % (day, step, k, text(f[k])))
        print("};\n")
    print("} // namespace charges_week")


main()
