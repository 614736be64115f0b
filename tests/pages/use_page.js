// Uses a page of the companion like a reader with a keyboard, and logs its findings to the console.
// tools/check_pages.sh appends it to a copy of the page.
"use strict";
{
  // A window without the focus styles nothing as focused.
  if (!document.hasFocus()) console.log("no focus");
  let checks = 0;
  const expect = (what, found, wanted) => {
    ++checks;
    if (found !== wanted) console.error(`${what}: found ${found}, wanted ${wanted}`);
  };
  const press = key => document.activeElement.dispatchEvent(new KeyboardEvent("keydown", {key, bubbles: true, cancelable: true}));
  const label = () => document.activeElement.firstChild.textContent;
  const opacity = () => getComputedStyle(document.activeElement.querySelector(".tip")).opacity;

  for (const grid of document.querySelectorAll(".grid")) {
    const cells = [...grid.querySelectorAll("td")];
    expect("cells", cells.length, 169);
    cells[0].focus();
    for (const [key, hand] of [["ArrowRight", "AKs"], ["ArrowDown", "KK"], ["ArrowLeft", "AKo"], ["ArrowLeft", "AKo"],
                               ["End", "K2s"], ["ArrowRight", "K2s"], ["ArrowUp", "A2s"], ["ArrowUp", "A2s"],
                               ["Home", "AA"], ["x", "AA"]]) {
      press(key);
      expect(`hand after ${key}`, label(), hand);
      expect(`cells that Tab comes to after ${key}`, cells.filter(cell => cell.tabIndex === 0).length, 1);
      expect(`the cell that Tab comes to after ${key}`, document.activeElement.tabIndex, 0);
      expect(`panel after ${key}`, opacity(), "1");
    }
    press("Escape");
    expect("panel after Escape", opacity(), "0");
    press("ArrowRight");
    expect("panel of the next cell", opacity(), "1");
    for (const cell of cells) {
      cell.focus();
      const tip = cell.querySelector(".tip").getBoundingClientRect();
      expect(`panel of ${label()} within the page`, tip.left >= 0 && tip.right <= innerWidth && tip.top >= 0, true);
    }
  }

  const figures = document.querySelector(".figures");
  const orders = column => [...figures.tBodies[0].rows].map(row => Number(row.cells[column].dataset.o));
  const sorted = (numbers, sign) => numbers.every((number, i) => i === 0 || sign * (number - numbers[i - 1]) >= 0);
  [...figures.tHead.rows[0].cells].forEach((heading, column) => {
    for (const order of column === 0 ? ["descending", "ascending"] : ["descending", "ascending", "descending"]) {
      heading.firstChild.click();
      expect(`order of column ${column}`, heading.getAttribute("aria-sort"), order);
      expect(`rows of column ${column}`, sorted(orders(column), order === "ascending" ? 1 : -1), true);
      expect("sorted columns", figures.querySelectorAll("[aria-sort]").length, 1);
    }
  });
  expect("scripts", document.scripts.length, 2);
  console.log(`${checks} checks of the page`);
}
