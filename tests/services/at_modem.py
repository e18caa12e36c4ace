# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""A modem that ModemManager reaches by AT commands over sockets, in place of the serial ports of a real one."""

import socket
import threading

HOME, SEARCHING, ROAMING = 1, 2, 5  # registered how, in the numbers of 3GPP TS 27.007

# What does not change; any other question is not understood, any other command is obeyed.
_ANSWERS = {
    "+GCAP": "+GCAP: +CGSM",
    "I": "Example\r\nModem",
    "+CGMI": "Example",
    "+CGMM": "Modem",
    "+CGMR": "1",
    "+CGSN": "490154203237518",
    "+CIMI": "001010123456789",
    "+CPIN?": "+CPIN: READY",
    "+CRSM=176,12258,0,0,10": "+CRSM: 144,0,\"98101430121181157002\"",  # the number of the SIM card
    "+CLCK=\"SC\",2": "+CLCK: 0",
    "+CREG=?": "+CREG: (0-2)",
    "+CGREG=?": "+CGREG: (0-2)",
    "+CSQ": "+CSQ: 20,99",
    "+CGATT?": "+CGATT: 1",
    "+CGDCONT=?": "+CGDCONT: (1-16),\"IP\",,,(0),(0)",
    "+CGDCONT?": "+CGDCONT: 1,\"IP\",\"internet\",\"\",0,0",
    "+CGACT?": "+CGACT: 1,0",
}


class AtModem:
    """Registered with an operator, at home. Its ports are sockets in a folder."""

    ports = ("ttyUSB0", "ttyUSB1")

    def __init__(self, folder, operator):
        self._operator = operator
        self._registration = HOME
        self._is_on = True
        self._wants_code = False  # of the operator, not the name
        self._clients = []
        self._servers = []
        for port in self.ports:
            server = socket.socket(socket.AF_UNIX)
            server.bind(str(folder / port))
            server.listen()
            self._servers.append(server)
            threading.Thread(target=self._serve, args=(server,), daemon=True).start()

    def register(self, operator, registration):
        """Says by itself that it is now with this operator, and how."""
        self._operator, self._registration = operator, registration
        for client in self._clients:
            for command in ("+CREG", "+CGREG"):
                self._say(client, self._registered(command))

    def close(self):
        for connection in (*self._servers, *self._clients):
            connection.shutdown(socket.SHUT_RDWR)
            connection.close()

    def _registered(self, command):
        return f"{command}: {self._registration if self._is_on else 0},\"0001\",\"00000001\""

    def _serve(self, server):
        while True:
            try:
                client, _ = server.accept()
            except OSError:
                return
            self._clients.append(client)
            threading.Thread(target=self._talk, args=(client,), daemon=True).start()

    def _talk(self, client):
        received = b""
        try:
            while True:
                part = client.recv(1024)
                if not part:
                    break
                received += part
                *commands, received = received.split(b"\r")
                for command in commands:
                    self._say(client, self._answer(command.decode("ascii").strip().removeprefix("AT")))
        except OSError:
            pass
        if client in self._clients:
            self._clients.remove(client)

    @staticmethod
    def _say(client, text):
        client.sendall(f"\r\n{text}\r\n".encode("ascii"))

    def _answer(self, command):
        answer = self._answer_of_state(command) or _ANSWERS.get(command)
        if answer:
            return answer if answer == "CONNECT" else f"{answer}\r\n\r\nOK"
        return "ERROR" if "?" in command else "OK"

    def _answer_of_state(self, command):
        if command.startswith("D*99"):
            return "CONNECT"
        if command.startswith("+CFUN="):
            self._is_on = command == "+CFUN=1"
        if command == "+CFUN?":
            return f"+CFUN: {1 if self._is_on else 4}"
        if command in ("+CREG?", "+CGREG?"):
            name = command[:-1]
            return self._registered(name).replace(": ", ": 2,")
        if command.startswith("+COPS=3,"):
            self._wants_code = command.endswith("2")
        if command == "+COPS?":
            return '+COPS: 0,2,"00101"' if self._wants_code else f'+COPS: 0,0,"{self._operator}"'
        return None
