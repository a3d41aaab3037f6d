#!/usr/bin/python3
"""A listener on the accessibility bus.
reader.py listen HEARD CARD...   keeps in HEARD how the table stands by what was announced, and the boxes
                                 that came up in HEARD.boxes; "known": it is the deal of these 50 cards
reader.py press NAME             presses a button or an option of the active window, in which all has to have names
"""
import sys
import time
import gi
gi.require_version('Atspi', '2.0')
from gi.repository import Atspi, Gio, GLib


class Table:
    """Believes what it is told, as long as it is by the rules of the game."""

    def __init__(self, deal):
        self.deal, self.known, self.stock = deal, False, '.'
        self.columns, self.piles = [['.'] * n for n in range(8)], [[] for _ in range(5)]

    def dealt(self, column, depth):
        return self.deal[column * (column - 1) // 2 + depth]

    def hear(self, news):
        if news.startswith('new deal: '):
            self.__init__(self.deal)
        for item in news.removeprefix('new deal: ').split('; '):
            what, _, where = item.rpartition(', ')
            if what == 'stock':
                self.stock = '.'
            elif not what:
                assert item.startswith('empty column ') and not self.columns[int(item[-1]) - 1]
            else:
                self.card(what[0] + what[-1], where)
        if news.startswith('new deal: '):
            self.known = all(self.columns[n][-1] == self.dealt(n, n - 1) for n in range(1, 8))

    def card(self, card, where):
        if where.startswith('column '):
            to = self.columns[int(where[-1]) - 1]
            if to and to[-1] == '.':
                return self.turn_up(to, card)
            assert not to or to[-1] == f'{int(card[0]) + 1}{card[1]}'
        elif where != 'stock':
            to = self.piles[int(where.removeprefix('finished pile ')) - 1]
            assert int(card[0]) == len(to) and (not to or to[-1][1] == card[1])
        home = [stack for stack in self.columns + self.piles if card in stack]
        if not home and card != self.stock and where != 'stock':  # turned up and on its way at once
            home = [column for column in self.columns if column and column[-1] == '.']
            self.turn_up(home[0], card)
        for stack in home:
            stack.remove(card)
        if where == 'stock':
            self.stock = card
        else:
            to.append(card)

    def turn_up(self, column, card):
        assert not self.known or card == self.dealt(self.columns.index(column), len(column) - 1)
        column[-1] = card

    def __str__(self):
        columns = (f'{n}={"".join(card[-1] for card in column) or "..."}' for n, column in enumerate(self.columns))
        piles = ''.join(pile[-1][-1] if pile else '.' for pile in self.piles)
        return f'{"known" if self.known else "new"} {" ".join(columns)} s={self.stock[-1]} p={piles}'


def has(thing, state):
    return thing.get_state_set().contains(state)


def parts_of(thing):
    parts = [thing.get_child_at_index(n) for n in range(thing.get_child_count())]
    return [part for part in parts if part]  # one may just have gone


def things_in(thing):
    yield thing
    for part in parts_of(thing):
        yield from things_in(part)


def listen(heard, *cards):
    table = Table([f'{int(card) % 10}{"SHDCO"[int(card) // 10]}' for card in cards])

    def on_event(event):
        source = event.source
        try:
            if event.type == 'window:activate' and source.get_role_name() == 'dialog':
                text = ' '.join(thing.get_name() for thing in things_in(source) if thing.get_role_name() == 'label')
                assert 'all done' not in text or all(len(pile) == 10 for pile in table.piles)
                open(heard + '.boxes', 'a').write(' '.join(text.split()) + '\n')
            elif event.type.endswith('showing') and event.detail1 and source.get_role_name() == 'notification':
                table.hear(source.get_name())
                open(heard, 'w').write(str(table))
        except Exception as fault:
            open(heard, 'w').write(f'{fault!r} at {source.get_name()} after {table}')
            Atspi.event_quit()

    Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        'org.a11y.Bus', '/org/a11y/bus', 'org.freedesktop.DBus.Properties', 'Set',
        GLib.Variant('(ssv)', ('org.a11y.Status', 'IsEnabled', GLib.Variant('b', True))), None, 0, -1, None)
    listener = Atspi.EventListener.new(on_event)
    for event in ('object:state-changed:showing', 'window:activate', 'object:property-change:accessible-name'):
        listener.register(event)  # without the last one names would stay as they were first read
    open(heard, 'w').write('nothing yet')
    Atspi.event_main()


def to_press(name):
    program = [app for app in parts_of(Atspi.get_desktop(0)) if app.get_name() == 'tessarine'][0]
    found = None
    for window in parts_of(program):
        if has(window, Atspi.StateType.ACTIVE):
            assert has(window, Atspi.StateType.MODAL) == (window.get_role_name() == 'dialog')
            for thing in things_in(window):
                role = thing.get_role_name()
                can_be_worked = 'button' in role or has(thing, Atspi.StateType.FOCUSABLE)
                assert thing.get_name() or not can_be_worked, f'a {role} has no name'
                if thing.get_name() == name and role in ('push button', 'radio button'):
                    found = thing
    return found


def press(name):
    until = time.monotonic() + 10
    while not (thing := to_press(name)):
        assert time.monotonic() < until, 'there is no such button'
        time.sleep(0.1)
    start = time.monotonic()
    assert thing.do_action(0) and time.monotonic() < start + 1
    if thing.get_role_name() == 'radio button':
        time.sleep(0.5)
        assert has(thing, Atspi.StateType.CHECKED)


Atspi.init()
{'listen': listen, 'press': press}[sys.argv[1]](*sys.argv[2:])
