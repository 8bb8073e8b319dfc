"""Goes through the pages of a wizard as somebody does who has a keyboard and a screen reader."""

from driver import (
    STATES,
    Atspi,
    children,
    expect,
    find,
    find_now,
    focus,
    has,
    mnemonic,
    press,
    text_of,
    type_text,
    wait,
    walk,
)


class Wizard:
    """The wizard with this title, which is open. `onward` is what stands on its button to the next
    page."""

    def __init__(self, program, title, onward):
        self.program = program
        self.title = title
        self.onward = onward

    def window(self):
        """Waits for the wizard to get the keys."""
        return self.program.window(self.title, "dialog")

    def page(self, name):
        """Waits for the page on which something has this name: its heading or one of its groups."""
        window = self.window()
        return wait(lambda: named(window, name), f"the page with {name!r}")

    def forward(self, name):
        """Goes on to the page on which something has this name."""
        self._press(self.onward)
        return self.page(name)

    def refused(self, message):
        """Tries to go on, and expects to be told why not."""
        self._press(self.onward)
        find(self.window(), "label", message)

    def finish(self, button):
        """Takes the last button of the wizard, and waits for it to close."""
        window = self.window()
        self.program.tab_to("push button", button)
        self.program.close_by("space", window)

    def _press(self, button):
        press(mnemonic(find(self.window(), "push button", button)))

    def fill(self, name, text):
        """Types into the field with this name, in the place of what stood there."""
        field = self._type_into("text", name, text)
        wait(lambda: text_of(field) == text, f"{text!r} to be typed into {name!r}")

    def fill_count(self, name, number):
        """The same for a field of whole numbers with arrows."""
        field = self._type_into("spin button", name, str(number))
        wait(lambda: str(number) in text_of(field).split(), f"{number} to be typed into {name!r}")

    def _type_into(self, role, name, text):
        field = self.program.tab_to(role, name)
        press("ctrl+a")
        type_text(text)
        return field

    def tick(self, name, on=True, role="check box"):
        """Sets or removes the mark of a box."""
        box = self.program.tab_to(role, name)
        if has(box, STATES.CHECKED) != on:
            press("space")
        wait(lambda: has(box, STATES.CHECKED) == on, f"the mark of {name!r}")

    def choose(self, name):
        """Chooses one of several possibilities, by the arrow keys from the one that is chosen."""
        wanted = find(self.window(), "radio button", name)
        group = [one.path for one in children(wanted.get_parent())]
        self.program.tab_until(
            lambda now: now.get_role_name() == "radio button" and now.path in group,
            f"the possibilities beside {name!r}",
        )
        while focus.path() != wanted.path:
            before = focus.path()
            press("Down" if group.index(before) < group.index(wanted.path) else "Up")
            wait(lambda: focus.path() != before, f"the possibility after {focus.now.get_name()!r}")
        if not has(wanted, STATES.CHECKED):
            press("space")
        wait(lambda: has(wanted, STATES.CHECKED), f"{name!r} to be chosen")

    def pick(self, label, entry):
        """Picks an entry of the list that has this label."""
        box = self.program.tab_until(
            lambda now: now.get_role_name() == "combo box" and label in labels_of(now),
            f"the list {label!r}",
        )
        entries = [one.get_name() for one in walk(box, showing=False) if one.get_role_name() == "list item"]
        press("Home", *["Down"] * entries.index(entry))
        wait(lambda: box.get_name() == entry, f"{entry!r} to be picked for {label!r}")

    def shown(self, *values):
        """Waits until all these values stand on the page."""
        window = self.window()
        for value in values:
            wait(lambda: named(window, value), f"{value!r} on the page")

    def table(self, name):
        """Goes into the table with this name."""
        self.program.tab_to("table", name)
        return Table(find(self.window(), "table", name))


class Table:
    """A table that has the focus. Cells are counted from 0, and only the columns that are seen."""

    def __init__(self, accessible):
        self.accessible = accessible

    def cell(self, row, column):
        """What stands in a cell."""
        return self.accessible.get_table_iface().get_accessible_at(row, column).get_name()

    def fill(self, rows):
        """Types rows of cells, from the first one on, and leaves the table behind the last cell. What
        stands in a cell stays where a row has None."""
        press("ctrl+Home")
        for row, entries in enumerate(rows):
            for column, entry in enumerate(entries):
                type_text("\t" if entry is None else f"{entry}\t")
                if entry is not None:
                    wait(
                        lambda: is_read(self.cell(row, column), entry),
                        f"{entry!r} in row {row}, column {column}",
                    )

    def leave(self):
        """Goes on behind the table, from any cell."""
        press("ctrl+Tab")


class PerMinute(float):
    """A rate [l/min]."""


def is_read(cell, entry):
    """Whether a cell is read as what was typed, with the unit that it shows."""
    if isinstance(entry, str):
        return cell == entry
    number, _, unit = cell.partition(" ")
    return (unit == "l/min") == isinstance(entry, PerMinute) and abs(float(number) - entry) < 1e-9


def named(window, name):
    """What is seen of a window and has this name, or None."""
    return next((one for one in walk(window) if one.get_name() == name), None)


def labels_of(accessible):
    """The texts that label an accessible."""
    return [
        relation.get_target(at).get_name()
        for relation in accessible.get_relation_set()
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
        for at in range(relation.get_n_targets())
    ]
