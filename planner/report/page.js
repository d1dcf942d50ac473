// Rows are made when a person opens what they stand in, a few hundred at a time: a bill of a whole vehicle has hundreds of
// thousands. Texts of the plan become text nodes and nothing else.
"use strict";

const data = JSON.parse(document.getElementById("data").textContent);
const STEP = 300;      // rows that are made at once
const PRINTED = 20000; // rows of the bill that go to paper
const LISTED = 1000;   // entries of each other list that do
const DEEP = 14;       // levels that are moved to the right

const levels = data.levels;
const rowCount = levels.length;
const ends = new Int32Array(rowCount); // behind the last row below each
{
    const open = [];
    for (let i = 0; i <= rowCount; ++i) {
        while (open.length && (i === rowCount || levels[open[open.length - 1]] >= levels[i])) ends[open.pop()] = i;
        open.push(i);
    }
}

const thing = (row) => data.things[data.rows[row]]; // [name, kind, type, id]
const number = (count) => count.toLocaleString("en");

function element(tag, attributes = {}, ...children) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (name.startsWith("on")) made.addEventListener(name.slice(2), value);
        else made.setAttribute(name, value);
    }
    made.append(...children);
    return made;
}

/// Fills a place with what `make` gives for the entries, STEP of them, and a button for the next ones. `place.add` makes
/// so many more and gives their number.
function fill(place, entries, make, most = STEP) {
    let made = 0;
    const more = element("button", { class: "more", onclick: () => place.add(STEP) });
    place.add = (count) => {
        more.remove();
        const next = entries(count);
        for (const entry of next.list) place.append(make(entry));
        made += next.list.length;
        if (next.isMore) {
            more.textContent = "Show more" + (next.all ? ` (${number(made)} of ${number(next.all)} are shown)` : "");
            place.append(more);
        }
        return next.list.length;
    };
    place.add(most);
}

/// Gives the entries of a list, some at a time.
function inTurn(list) {
    let at = 0;
    return (count) => ({ list: list.slice(at, (at += count)), isMore: at < list.length, all: list.length });
}

/// Gives the rows directly below another (or the top, -1), some at a time.
function rowsBelow(row) {
    let at = row + 1;
    const end = row < 0 ? rowCount : ends[row];
    return (count) => {
        const list = [];
        for (; at < end && list.length < count; at = ends[at]) list.push(at);
        return { list, isMore: at < end };
    };
}

function words(row) {
    const [name, kind, type, id] = thing(row);
    return [
        element("span", { class: "name" }, name),
        element("span", { class: "kind" }, type ? `${kind}, ${type}` : kind),
        element("span", { class: "id" }, id === name ? "" : id),
    ];
}

function rowElement(row) {
    const isLeaf = ends[row] === row + 1;
    const toggle = element("button", { class: isLeaf ? "toggle leaf" : "toggle", "aria-label": "Open or close" }, "▸");
    const line = element("div", { class: "row" }, toggle, ...words(row));
    const item = element("div", { "data-row": row }, line);
    item.open = (isOpen, most) => {
        const kids = item.querySelector(":scope > .kids");
        if (isLeaf || isOpen === Boolean(kids)) return;
        toggle.textContent = isOpen ? "▾" : "▸";
        toggle.setAttribute("aria-expanded", isOpen);
        if (kids) {
            kids.remove();
        } else {
            const below = element("div", { class: levels[row] < DEEP ? "kids" : "kids deep" });
            fill(below, rowsBelow(row), rowElement, most);
            item.append(below);
        }
    };
    if (!isLeaf) {
        toggle.setAttribute("aria-expanded", false);
        line.addEventListener("click", () => item.open(!item.querySelector(":scope > .kids")));
    }
    return item;
}

const tree = document.getElementById("tree");
function showTree() {
    tree.replaceChildren();
    fill(tree, rowsBelow(-1), rowElement);
}

/// Makes what isn't there yet and opens what is closed, from the top on, until so many rows are there.
function openAll(most) {
    let made = tree.querySelectorAll(".row").length;
    const places = [tree];
    for (let i = 0; i < places.length && made < most; ++i) {
        made += places[i].add(most - made);
        for (const item of places[i].querySelectorAll(":scope > [data-row]")) {
            const known = item.querySelector(":scope > .kids");
            if (!known && made < most) item.open(true, most - made);
            const kids = item.querySelector(":scope > .kids");
            if (!kids) continue;
            if (!known) made += kids.querySelectorAll(".row").length;
            places.push(kids);
        }
    }
}

/// Opens the way to a row and marks it. Where the way leads on beyond the first rows of a place, all up to it are made.
function reveal(row) {
    document.getElementById("search").value = "";
    showTree();
    let place = tree;
    for (let at = 0; ; ) {
        while (ends[at] <= row) at = ends[at];
        while (!place.querySelector(`:scope > [data-row="${at}"]`)) place.querySelector(":scope > .more").click();
        const item = place.querySelector(`:scope > [data-row="${at}"]`);
        if (at === row) {
            item.firstChild.classList.add("found");
            item.scrollIntoView({ block: "center" });
            return;
        }
        item.open(true);
        place = item.querySelector(":scope > .kids");
        ++at;
    }
}

const plain = (text) => text.toLocaleLowerCase();

function search(text) {
    const wanted = plain(text.trim());
    const told = document.getElementById("found");
    told.textContent = "";
    if (!wanted) return showTree();
    const matches = data.things.map((each) => each.some((part) => plain(part).includes(wanted)));
    const found = [];
    const path = [];
    for (let row = 0; row < rowCount; ++row) {
        path.length = levels[row] - 1;
        if (matches[data.rows[row]]) found.push([row, path.map((above) => thing(above)[0]).slice(-4).join(" / ")]);
        path.push(row);
    }
    told.textContent = `${number(found.length)} of ${number(rowCount)} rows`;
    tree.replaceChildren();
    fill(tree, inTurn(found), ([row, above]) => {
        const line = element("div", { class: "row hit", tabindex: 0, onclick: () => reveal(row) }, ...words(row));
        line.addEventListener("keydown", (event) => event.key === "Enter" && reveal(row));
        line.insertBefore(element("span", { class: "soft" }, above && `in ${above}`), line.lastChild);
        return line;
    });
}

function table(head, rows) {
    const body = rows.map((cells) =>
        element("tr", {}, ...cells.map((cell) =>
            typeof cell === "number" ? element("td", { class: "number" }, number(cell)) : element("td", {}, cell))));
    return element("table", {}, element("tr", {}, ...head.map((text) => element("th", {}, text))), ...body);
}

/// An object as name and id in a cell.
function named(index) {
    const [name, , , id] = data.things[index];
    return id === name ? name : element("span", {}, name, " ", element("span", { class: "id" }, id));
}

function kitElement([place, brought, fasteners, taken, put]) {
    const made = element("details", {}, element("summary", {}, place));
    const parts = (title, items) =>
        items.length ? [element("h3", {}, title), table(["Number", "Item"], items.map(([item, count]) => [count, named(item)]))] : [];
    made.addEventListener("toggle", () => made.open && made.childElementCount === 1 && made.append(
        ...parts("Brings in", brought),
        ...fasteners.flatMap(([type, items]) => parts(type ? `Fasteners: ${type}` : "Fasteners", items)),
        ...parts("Takes away", taken),
        ...parts("Puts out", put)));
    return made;
}

function findingElement([object, message, advice, place]) {
    return element("div", { class: "finding" },
        element("div", {}, element("strong", {}, object), place ? element("span", { class: "soft" }, ` ${place}`) : ""),
        element("div", {}, message, "."), element("div", { class: "soft" }, advice));
}

function showSums() {
    const counts = new Map();
    for (const row of data.rows) counts.set(data.things[row][1], (counts.get(data.things[row][1]) || 0) + 1);
    const counted = (count, word) => `${number(count)} ${count === 1 ? word : word.replace(/y$/, "ie") + "s"}`;
    const kinds = [...counts].map(([kind, count]) => counted(count, kind)).join(", ");
    document.getElementById("sums").textContent = counted(rowCount, "element") + (kinds ? `: ${kinds}` : "");
}

function showRest() {
    const kits = document.getElementById("kit-list");
    fill(kits.appendChild(element("div")), inTurn(data.kits), kitElement);
    if (data.differences.length) {
        kits.append(element("h3", { class: "warning" }, "What doesn't add up"));
        fill(kits.appendChild(element("div")), inTurn(data.differences), ([item, inKits, inBill, reason]) =>
            element("div", { class: "finding" }, element("strong", {}, named(item)),
                ` ${number(inKits)} in the kits, ${number(inBill)} in the bill: ${reason}`));
    }
    const checks = document.getElementById("check-list");
    for (const [heading, findings] of data.checks) {
        checks.append(element("h3", {}, `${heading} (${number(findings.length)})`));
        fill(checks.appendChild(element("div")), inTurn(findings), findingElement);
    }
}

function searchByHash() {
    const asked = new URLSearchParams(location.hash.slice(1)).get("search");
    if (asked === null) return;
    document.getElementById("search").value = asked;
    search(asked);
}

let waits = 0;
document.getElementById("search").addEventListener("input", (event) => {
    clearTimeout(waits);
    waits = setTimeout(() => search(event.target.value), 120);
});
document.getElementById("open").addEventListener("click", () => openAll(2000));
document.getElementById("close").addEventListener("click", () => search(""));
window.addEventListener("hashchange", searchByHash);
window.addEventListener("beforeprint", () => {
    openAll(PRINTED);
    if (rowCount > PRINTED && !document.getElementById("search").value)
        document.getElementById("found").textContent = `${number(PRINTED)} of ${number(rowCount)} rows are printed`;
    for (const list of document.querySelectorAll("#kit-list > div, #check-list > div")) list.add(Math.max(0, LISTED - list.childElementCount));
    for (const each of document.querySelectorAll("details")) {
        each.open = true;
        each.dispatchEvent(new Event("toggle"));
    }
});

showSums();
showTree();
showRest();
searchByHash();
