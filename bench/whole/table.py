"""The figures of a run, each with the most that it may be."""


class Table:
    def __init__(self):
        self.rows = []
        self.notes = []

    def row(self, measure, value, unit, most=None):
        """`most` is the goal; a figure without one is for information."""
        self.rows.append({"measure": measure, "value": value, "unit": unit, "most": most,
                          "met": None if most is None else value <= most})

    def note(self, text):
        self.notes.append(text)

    def figures(self):
        return {"measures": self.rows, "notes": self.notes}

    def text(self):
        width = max(len(row["measure"]) for row in self.rows)
        lines = [f"{'measure':{width}}  {'value':>8}  {'at most':>8}  {'met':3}  unit"]
        for row in self.rows:
            most = "" if row["most"] is None else f"{row['most']:.2f}"
            met = {None: "", True: "yes", False: "NO"}[row["met"]]
            lines.append(f"{row['measure']:{width}}  {row['value']:8.2f}  {most:>8}  {met:3}  "
                         f"{row['unit']}")
        return "\n".join([*lines, "", *self.notes])
