# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""With a mobile plan as well no change costs a call more than "nmcli monitor" makes: its modem is asked at the start."""

import test_bus_calls
from scenario import main


class BusCallsOfPlan(test_bus_calls.BusCalls):

    kind = "mobile"
    # Two matches for its signal, the owner of ModemManager's name, and its values, of which nmcli says nothing.
    calls_for_the_modem = 4

    def add_connection(self):
        return self.add_modem()


if __name__ == "__main__":
    main()
