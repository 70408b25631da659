"""The loops of bench/member_list.cpp over dictionaries, the way one would write them down.

    member_list_dictionaries.py ENTITIES ROUNDS

Prints the number of members found and, for each of the two loops, the median milliseconds of
processor time. Only the standard library is used.
"""

import statistics
import sys
import time

CURRENCIES = ["EUR", "USD", "GBP", "CHF"]
COUNTRIES = ["FR", "US", "GB", "CH", "DE", "IT", "ES"]


def make(count):
    """A dictionary of attributes for each entity, in dictionaries by label."""
    return {
        f"E{100000 + i}": {
            "DefCurrency": CURRENCIES[i % 4],
            "IsICP": "N",
            "UserDefined1": COUNTRIES[i % 7],
            "DefaultParent": "GROUP",
        }
        for i in range(count)
    }


def for_each(members):
    found = []
    for entity in members:
        if members[entity]["DefCurrency"] == "EUR":
            if members[entity]["UserDefined1"] == "FR":
                found.append(entity)
    return found


def by_index(members):
    found = []
    entities = list(members)
    for i in range(len(entities)):
        if members[entities[i]]["DefCurrency"] == "EUR" and members[entities[i]]["UserDefined1"] == "FR":
            found.append(entities[i])
    return found


def milliseconds(loop, members, rounds):
    times = []
    for _ in range(rounds):
        started = time.process_time()
        loop(members)
        times.append(1000 * (time.process_time() - started))
    return statistics.median(times)


members = make(int(sys.argv[1]))
rounds = int(sys.argv[2])
found = len(for_each(members))
print(found, *(f"{milliseconds(loop, members, rounds):.3f}" for loop in (for_each, by_index)))
