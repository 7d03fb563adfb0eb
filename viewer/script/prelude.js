// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// What scripts find: made once for each run, from what the bridge offers. Gives the function that
// runs a script, whose answer is an array with what the script threw, if it threw something.
(function (bridge) {
    "use strict";

    const Failure = Error; // a script may call something else by this name
    const handlers = bridge.signalNames().map(() => null); // null: nobody has asked yet
    let isDelivering = false;

    // Handlers may call operations; what those announce comes after what is on its way already.
    function deliver() {
        if (isDelivering)
            return;
        isDelivering = true;
        try {
            for (let event = bridge.nextEvent(); event; event = bridge.nextEvent()) {
                const [index, ...lists] = event;
                for (const handler of [...handlers[index]])
                    handler(...lists);
            }
        } finally {
            isDelivering = false;
        }
    }

    function checked(answer) {
        if (answer instanceof Failure)
            throw answer;
        return answer;
    }

    function operation(index) {
        return function (...values) {
            const answer = checked(bridge.call(index, values));
            deliver();
            return answer;
        };
    }

    function signal(name, index) {
        return Object.freeze({
            connect: function (handler) {
                if (typeof handler !== "function")
                    throw new TypeError("overlays." + name + ".connect(handler) takes a function.");
                if (!handlers[index]) {
                    handlers[index] = [];
                    bridge.listen(index);
                }
                handlers[index].push(handler);
            },
            disconnect: function (handler) {
                const at = handlers[index] ? handlers[index].indexOf(handler) : -1;
                if (at >= 0)
                    handlers[index].splice(at, 1);
                return at >= 0;
            }
        });
    }

    const objects = {overlays: {}, history: {}};
    bridge.operations().forEach((path, index) => {
        const [object, name] = path.split(".");
        objects[object][name] = operation(index);
    });
    bridge.signalNames().forEach((name, index) => {
        objects.overlays[name] = signal(name, index);
    });

    const global = new Function("return this")();
    delete global.Promise; // its handlers would never be called: nothing goes on behind the last line
    function offer(name, value) {
        Object.defineProperty(global, name, {value: Object.freeze(value)});
    }
    offer("overlays", objects.overlays);
    offer("history", objects.history);
    offer("print", (...values) => bridge.print(values.map(String).join(" ")));
    offer("readText", (...values) => checked(bridge.readText(values)));

    return function (script) {
        try {
            script();
        } catch (thrown) {
            return [thrown];
        }
    };
})
