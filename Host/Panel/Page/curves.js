// Values over time. Each curve has its own scale, which the legend prints.

import { byId, make, memory, setText } from './dom.js';
import { fieldsOf, numberOf, partOf, print } from './values.js';

const kept = 600;         // seconds
const mostPoints = 15000; // of a curve
const colours = 8;        // --curve0 to --curve7
const period = 200;       // milliseconds between two drawings

export class Curves {
	#functions;
	#told;
	#points = new Map();  // lists of [time, value], by name of the curve
	#chosen = new Map();  // colour and legend, by name of the curve
	#pointer = null;      // where it is, as a share of the width
	#offset = 0;          // of the program's time from that of the page, in seconds

	/** @param told called when other curves are chosen */
	constructor(link, functions, told) {
		this.#functions = functions;
		this.#told = told;
		link.on('values', ({ time, values }) => {
			this.#offset = time - performance.now() / 1000;
			for (const [name, value] of Object.entries(values ?? {})) {
				this.#record(name, value, time);
			}
		});
		const span = byId('span');
		span.value = memory.get('span', '120');
		span.onchange = () => memory.set('span', span.value);
		const plot = byId('plot');
		plot.onpointermove = (event) => {
			this.#pointer = event.offsetX / plot.clientWidth;
		};
		plot.onpointerleave = () => {
			this.#pointer = null;
		};
		setInterval(() => this.#draw(), period);
	}

	get #now() {
		return performance.now() / 1000 + this.#offset;
	}

	/** The functions that are to be read often. */
	shown() {
		return [...new Set([...this.#chosen.keys()].map((name) => name.split(' ')[0]))].filter((name) => name !== 'picture');
	}

	/** Shows or hides a function, or "picture mean" and the like. */
	toggle(name) {
		const description = this.#functions.get(name);
		const names = description ? fieldsOf(description).map((field) => `${name} ${field}`.trim()) : [name];
		const hides = names.every((each) => this.#chosen.has(each));
		names.forEach((each) => hides ? this.#remove(each) : this.#choose(each));
		if (description && !hides) {
			this.#record(name, description.value, this.#now);
		}
		this.#told(!hides);
	}

	#record(name, value, time) {
		const description = this.#functions.get(name);
		for (const field of description ? fieldsOf(description) : []) {
			const number = numberOf(description, partOf(value, field));
			if (number !== null) {
				this.add(`${name} ${field}`.trim(), number, time);
			}
		}
	}

	add(name, value, time = this.#now) {
		const points = this.#points.get(name) ?? [];
		this.#points.set(name, points);
		points.push([time, value]);
		if (points.length > mostPoints || points[0][0] < time - 2 * kept) {
			// One earlier value stays: a curve keeps its value until the next.
			const first = points.findLastIndex(([at]) => at < time - kept);
			points.splice(0, Math.max(first, points.length - mostPoints, 0));
		}
	}

	#choose(name) {
		if (this.#chosen.has(name)) {
			return;
		}
		const used = [...this.#chosen.values()].map(({ colour }) => colour);
		const colour = Array.from({ length: colours }, (_, index) => index).find((index) => !used.includes(index)) ?? 0;
		const value = make('output', {});
		const scale = make('span', { class: 'scale' });
		const swatch = make('span', { class: 'swatch' });
		swatch.style.background = `var(--curve${colour})`;
		const entry = make('li', {}, swatch, make('span', {}, name), value, scale,
			make('button', { class: 'tool', 'aria-label': `Remove ${name}`, onclick: () => {
				this.#remove(name);
				this.#told(false);
			} }, '×'));
		byId('legend').append(entry);
		this.#chosen.set(name, { colour, entry, value, scale });
	}

	#remove(name) {
		this.#chosen.get(name)?.entry.remove();
		this.#chosen.delete(name);
	}

	#draw() {
		const canvas = byId('plot');
		byId('no-curves').hidden = this.#chosen.size > 0;
		if (document.hidden || canvas.clientWidth === 0) {
			return;
		}
		const ratio = devicePixelRatio;
		const width = canvas.clientWidth;
		const height = canvas.clientHeight;
		canvas.width = Math.round(width * ratio);
		canvas.height = Math.round(height * ratio);
		const context = canvas.getContext('2d');
		context.scale(ratio, ratio);
		const style = getComputedStyle(canvas);
		const span = Number(byId('span').value);
		const end = this.#now;
		const frame = { context, style, end, span, width, height: height - 14 };
		this.#drawGrid(frame);
		for (const [name, curve] of this.#chosen) {
			this.#drawCurve(frame, this.#points.get(name) ?? [], curve);
		}
	}

	#drawGrid({ context, style, span, width, height }) {
		context.fillStyle = style.getPropertyValue('--dim');
		context.strokeStyle = style.getPropertyValue('--line');
		context.font = style.font;
		context.textAlign = 'center';
		const parts = 6;
		context.beginPath();
		for (let part = 0; part <= parts; ++part) {
			const x = Math.round(part * width / parts) + 0.5;
			context.moveTo(x, 0);
			context.lineTo(x, height);
			const seconds = span * (parts - part) / parts;
			if (part > 0 && part < parts) {
				context.fillText(seconds >= 120 ? `−${(seconds / 60).toFixed(1)} min` : `−${Math.round(seconds)} s`, x, height + 11);
			}
		}
		for (const y of [0.5, Math.round(height / 2) + 0.5, height + 0.5]) {
			context.moveTo(0, y);
			context.lineTo(width, y);
		}
		context.stroke();
	}

	/** A value holds until the next one. */
	#drawCurve({ context, style, end, span, width, height }, points, { colour, value, scale }) {
		const start = end - span;
		const first = Math.max(points.findLastIndex(([time]) => time <= start), 0);
		const shown = points.slice(first);
		const last = shown.at(-1);
		const values = shown.map(([, number]) => number);
		const low = values.reduce((least, number) => Math.min(least, number), Infinity);
		const high = values.reduce((most, number) => Math.max(most, number), -Infinity);
		setText(scale, last ? `${round(low)} – ${round(high)}` : '');
		const at = this.#pointer === null ? end : start + this.#pointer * span;
		setText(value, print(round(shown.findLast(([time]) => time <= at)?.[1])));
		if (!last) {
			return;
		}
		const margin = 4;
		const toX = (time) => (time - start) / span * width;
		const toY = (number) => high === low ? height / 2
			: height - margin - (number - low) / (high - low) * (height - 2 * margin);
		context.strokeStyle = style.getPropertyValue(`--curve${colour}`);
		context.lineWidth = 1.5;
		context.beginPath();
		context.moveTo(toX(shown[0][0]), toY(shown[0][1]));
		for (let index = 1; index < shown.length; ++index) {
			const x = toX(shown[index][0]);
			context.lineTo(x, toY(shown[index - 1][1]));
			context.lineTo(x, toY(shown[index][1]));
		}
		context.lineTo(toX(end), toY(last[1]));
		context.stroke();
		context.lineWidth = 1;
	}
}

function round(number) {
	return number === undefined || Number.isInteger(number) ? number : Number(number.toPrecision(5));
}
